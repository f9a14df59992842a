#pragma once

class QProcess;

/// What Windows alone wants of the program; on other systems none of it does anything.
namespace OnWindows {

/// Makes the program's folder the current one where that is the system's or below it: there Windows starts who chose
/// "Run as administrator", and no such person means to work among the system's files. To be called before the first
/// file is looked for, when the application object is there.
void leaveSystemFolder();

/// Has the started @p process end with this program even when that is ended by force: the system closes the program's
/// handles then, and what is in a job goes with the last handle of that. Does nothing when the system refuses.
void endWithProgram(const QProcess& process);

} // namespace OnWindows
