#pragma once

#include <QString>

struct MemoryRequest;
struct SettingsRecord;

/// Files of bytes without addresses, which avrdude cuts to the size of the memory and then calls written and verified.
namespace RawFile {

/// What speaks against @p request, in a sentence for the user: it would write or verify a raw file that is larger than
/// the memory of the microcontroller in @p settings. Empty for all other operations and formats, and where the file or
/// the description of the microcontroller does not tell its size: avrdude has the say there.
[[nodiscard]] QString fault(const SettingsRecord& settings, const MemoryRequest& request);

} // namespace RawFile
