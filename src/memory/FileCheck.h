#pragma once

class QWidget;
struct MemoryRequest;
struct SettingsRecord;

/// What is looked at before a file goes to avrdude, which notices some mistakes too late and others never.
namespace FileCheck {

/// Whether @p request may go out with @p settings; boxes over @p parent say why it may not. What avrdude would
/// not take for the path of a file is refused, and so is a raw file that is larger than the memory: avrdude would cut
/// it, and call it written and verified. Where avrdude would erase the chip and refuse the file only then, or write
/// nothing of it, the user is asked. In all other cases avrdude has the say, and nothing is shown.
[[nodiscard]] bool passes(QWidget* parent, const SettingsRecord& settings, const MemoryRequest& request);

} // namespace FileCheck
