#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

/// Finds a microcontroller by its signature. Built from all descriptions when it is first asked, which takes longer
/// than all else of a start; kept for the life of the Programming tab, which owns it.
class SignatureIndex
{
public:
    struct Mcu {
        QString name;
        QString id; ///< avrdude's "-p"
    };

    /// The microcontroller with @p signature ("1E 94 03"); both texts are empty when there is none. Files that are no
    /// description, or lack a name, an id or a signature, do not count; of two with the same signature the later in the
    /// folder's order does.
    [[nodiscard]] Mcu find(const QString& signature);

    /// The names of all descriptions with @p signature, in order. Reads all of them.
    [[nodiscard]] static QStringList namesOf(const QString& signature);

private:
    void build();

    QHash<QString, Mcu> m_mcus;
    bool m_isBuilt = false;
};
