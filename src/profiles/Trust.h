#pragma once

class QWidget;
struct SettingsRecord;

/// What a profile may decide by being loaded. It may come from anybody, and is as good as data can be.
namespace Trust {

/// Asks, in boxes over @p parent, whether @p profile, which was loaded and takes the place of @p present, may have
/// another program run than that one, or the one that the system has; and whether it may bring arguments with which
/// avrdude reads or writes files, and which are neither in use nor in its programmer's catalogue entry. Unless the user
/// says yes the present program stays, and these arguments are left out. Profiles of people who do neither ask nothing.
void settle(QWidget* parent, SettingsRecord& profile, const SettingsRecord& present);

} // namespace Trust
