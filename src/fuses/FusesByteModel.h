#pragma once

#include "app/record/FuseByte.h"

#include <QObject>

/// One fuse byte of the settings record, as its editor reads and changes it. Every change lands in the record at once.
/// Bound to its byte by place, not by address: the record's list, which outlives it, may get another content under it.
/// Lives as long as the byte's editor.
class FusesByteModel : public QObject
{
    Q_OBJECT

public:
    /// @p index is the byte's place in @p bytes.
    FusesByteModel(FuseBytes& bytes, int index, QObject* parent = nullptr);

    [[nodiscard]] const FuseByte& byte() const { return m_bytes.at(m_index); }

    /// setValue() and setBit() for this byte.
    void setByte(quint32 value) { setValue(m_bytes[m_index], value); }
    void setBit(int index, bool checked) { ::setBit(m_bytes[m_index], index, checked); }

private:
    FuseBytes& m_bytes;
    int m_index;
};
