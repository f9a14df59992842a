#include "fuses/FusesByteModel.h"

FusesByteModel::FusesByteModel(FuseBytes& bytes, int index, QObject* parent)
    : QObject(parent)
    , m_bytes(bytes)
    , m_index(index)
{
}
