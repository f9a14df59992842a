#pragma once

#include <QStringList>

class QWidget;
struct SettingsRecord;

/// Files of bytes without addresses, which avrdude cuts to the size of the memory and then calls written and verified.
namespace RawFile {

/// Looks at @p request, avrdude's "-U" and the memory operation after it. Returns false, after a box over @p parent
/// that names both sizes, when it would write or verify a raw file that is larger than the memory of the
/// microcontroller in @p settings. True for all other operations and formats, and where the file or the description of
/// the microcontroller does not tell its size: avrdude has the say there.
[[nodiscard]] bool fits(const SettingsRecord& settings, const QStringList& request, QWidget* parent);

} // namespace RawFile
