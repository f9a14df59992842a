#pragma once

#include "app/record/FuseByte.h"

#include <QObject>
#include <QStringList>

/// Keeps the value and the eight bits of one fuse byte of the settings record consistent. Every change lands in the
/// record at once. Bound to its byte by place, not by address: the record's list, which outlives it, may get another
/// content under it. Lives as long as the byte's editor.
class FusesByteModel : public QObject
{
    Q_OBJECT

public:
    /// @p index is the byte's place in @p bytes.
    FusesByteModel(FuseBytes& bytes, int index, QObject* parent = nullptr);

    [[nodiscard]] const FuseByte& byte() const { return m_bytes.at(m_index); }

    /// Takes over those bits of @p value that the user may change and that have a name; the byte's value becomes what
    /// the bits then say. So a locked bit cannot be typed away.
    void setByte(quint32 value);

    /// Programs the bit @p index (0 to 7) when @p checked, whatever its name, and unprograms it otherwise.
    /// Another index changes nothing.
    void setBit(int index, bool checked);

    /// Gives every byte of @p bytes its default value. The bits follow when the editors are refreshed.
    static void restoreDefaults(FuseBytes& bytes);

    /// Gives the bytes of @p bytes the values read from the chip, in order, as far as both lists go; @p texts are
    /// hexadecimal, and what is not counts as 0. An empty one leaves its byte as it is. Returns the names of the bytes
    /// so left. The bits follow when the editors are refreshed.
    static QStringList applyReadValues(FuseBytes& bytes, const QStringList& texts);

private:
    FuseBytes& m_bytes;
    int m_index;
};
