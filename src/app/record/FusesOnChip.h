#pragma once

#include "app/record/FuseByte.h"

#include <QHash>

/// What the fuse bytes of a part were when they were last read from or written to a chip, since the program began. A
/// plain value; parts go by avrdude's identifiers.
class FusesOnChip
{
public:
    /// Notes the present values of @p bytes but for those called one of @p except.
    void note(const QString& part, const FuseBytes& bytes, const QStringList& except = {})
    {
        for (const FuseByte& byte : bytes) {
            if (!except.contains(byte.name))
                m_values[part][byte.id] = byte.currentValue;
        }
    }

    /// Forgets what is known of @p part: its bytes are about to change.
    void forget(const QString& part) { m_values.remove(part); }

    /// Whether anything is known of @p part.
    [[nodiscard]] bool knows(const QString& part) const { return m_values.contains(part); }

    /// Whether @p part is known to have what @p byte has in @p bits.
    [[nodiscard]] bool has(const QString& part, const FuseByte& byte, quint32 bits) const
    {
        const auto values = m_values.value(part);
        return values.contains(byte.id) && ((values.value(byte.id) ^ byte.currentValue) & bits) == 0;
    }

private:
    QHash<QString, QHash<QString, quint32>> m_values; ///< by part, then by the byte's identifier
};
