#pragma once

#include "fuses/FusesByteView.h"
#include "fuses/HexField.h"

/// The values in the editors of fuse bytes below @p parent, joined; editors on their way out do not count.
inline QString shownFuses(const QWidget& parent)
{
    QString values;
    for (const FusesByteView* editor : parent.findChildren<FusesByteView*>())
        values += editor->parentWidget()->isHidden() ? QString() : editor->value()->text();
    return values;
}
