#pragma once

#include "app/record/FusesOnChip.h"

#include <QHash>
#include <QJsonObject>
#include <QPair>
#include <QRegularExpression>
#include <QString>
#include <QVector>

struct SettingsRecord;

/// Tells what the bits of the shown microcontroller's fuse bytes mean. The description says which bits form a field,
/// and two files beside the descriptions give the vendor's symbol for each setting of a field and the rules by which
/// symbols become words. Whatever of this is missing, the texts are missing and nothing else. Owned by FusesBytes.
/// Loading takes its time, and is left until somebody looks at the editors: before it there are no texts.
class FuseMeanings
{
public:
    /// A text about some bits of a byte.
    struct Text {
        quint32 bits; ///< bit 0 is the least significant one
        QString text; ///< plain, of several lines
    };

    /// A setting that a field of a byte can have.
    struct Setting {
        quint32 value; ///< of the whole byte, with this setting in it and all else as it is
        QString digits; ///< of the field's bits, from the highest down
        QString meaning;
        bool isPresent;
        bool isFactory;
    };

    /// Reads what is known of the microcontroller in @p settings, in place of the one before.
    void load(const SettingsRecord& settings);

    /// Forgets the microcontroller that was loaded.
    void clear();

    [[nodiscard]] bool isLoaded() const { return m_isLoaded; }

    /// Those bits of @p byte whose setting is not the factory's: the description's, or the byte's own default while
    /// none is loaded.
    [[nodiscard]] quint32 changed(const FuseByte& byte) const;

    /// One text for each known field of @p byte, from the highest bit down: the field in words, its present setting
    /// with its meaning, the factory's if that is another, and what to expect where a setting locks the programmer out.
    [[nodiscard]] QVector<Text> of(const FuseByte& byte) const;

    /// The settings that clicks can give to the field which the bit @p number of @p byte belongs to, by value. Reserved
    /// ones are left out, and of those that mean the same there is one. None where the field is a number, or
    /// nothing is known.
    [[nodiscard]] QVector<Setting> settings(const FuseByte& byte, int number) const;

    /// What to expect of those settings among the fuse bytes of @p settings that lock the programmer out, as in their
    /// texts, a line each with the byte's name. Left out are those that the part has according to one of @p known.
    [[nodiscard]] static QStringList warnings(const SettingsRecord& settings, const QVector<FusesOnChip>& known = {});

private:
    struct Field {
        quint32 bits;
        QString name; ///< the vendor's, in lower case, or ours where one name of theirs stands for two things
        QString text; ///< what it is for
        /// The vendor's symbols by value, "*" for all others. In place of a symbol stands a number of bytes where a
        /// setting bounds a section of the flash: counted from its start, or, if negative, from its end; that of "*"
        /// is for each 1 of the value. Without any the field holds a number.
        QJsonObject symbols;

        /// Whether its settings are read as a number, and are too many to list.
        [[nodiscard]] bool isNumber() const;
    };

    [[nodiscard]] quint32 factoryValue(const FuseByte& byte) const;
    [[nodiscard]] QString symbolOf(const Field& field, quint32 value) const;
    [[nodiscard]] QString warningOf(const Field& field, const FuseByte& byte) const;
    [[nodiscard]] QString textOf(const Field& field, const FuseByte& byte) const;
    [[nodiscard]] QString meaningOf(const QString& field, QString symbol) const;
    [[nodiscard]] QString sectionSymbol(int bytes) const;

    bool m_isLoaded = false;
    int m_flashSize = 0; ///< bytes; 0 if not known
    QHash<QString, quint32> m_factoryValues; ///< by the byte's id
    QHash<QString, QVector<Field>> m_fields; ///< the same
    QJsonObject m_words; ///< by symbol, or by field and symbol where fields share one; those without one are reserved
    QVector<QPair<QRegularExpression, QString>> m_rules; ///< make words of all other symbols, one rule after another
};
