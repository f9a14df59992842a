#pragma once

#include <QHash>
#include <QString>

/// Finds a microcontroller by its signature. Built from all descriptions; kept for the life of the Programming tab,
/// which owns it.
class SignatureIndex
{
public:
    struct Mcu {
        QString name;
        QString id; ///< avrdude's "-p"
    };

    /// Reads every description anew. Files that are no description, or lack a name, an id or a signature, are skipped;
    /// of two with the same signature the later in the folder's order counts.
    void build();

    /// The microcontroller with @p signature ("1E 94 03"); both texts are empty when there is none.
    [[nodiscard]] Mcu find(const QString& signature) const { return m_mcus.value(signature); }

private:
    QHash<QString, Mcu> m_mcus;
};
