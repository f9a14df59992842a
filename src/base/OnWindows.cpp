#include "base/OnWindows.h"

#include <QtGlobal>

#ifdef Q_OS_WIN

#include <QCoreApplication>
#include <QDir>
#include <QProcess>

#include <array>

#include <qt_windows.h>

void OnWindows::leaveSystemFolder()
{
    const auto pathOf = [](const QString& folder) { return QDir(folder).canonicalPath() + QLatin1Char('/'); };
    std::array<wchar_t, MAX_PATH> system = {};
    if (GetSystemWindowsDirectoryW(system.data(), MAX_PATH) == 0)
        return;
    if (pathOf(QDir::currentPath()).startsWith(pathOf(QString::fromWCharArray(system.data())), Qt::CaseInsensitive))
        QDir::setCurrent(QCoreApplication::applicationDirPath());
}

void OnWindows::endWithProgram(const QProcess& process)
{
    static const HANDLE job = [] { // stays open until the program ends
        const HANDLE made = CreateJobObjectW(nullptr, nullptr);
        JOBOBJECT_EXTENDED_LIMIT_INFORMATION limits = {};
        limits.BasicLimitInformation.LimitFlags = JOB_OBJECT_LIMIT_KILL_ON_JOB_CLOSE;
        SetInformationJobObject(made, JobObjectExtendedLimitInformation, &limits, sizeof limits);
        return made;
    }();
    const HANDLE started =
        OpenProcess(PROCESS_SET_QUOTA | PROCESS_TERMINATE, FALSE, static_cast<DWORD>(process.processId()));
    AssignProcessToJobObject(job, started);
    CloseHandle(started);
}

#else

void OnWindows::leaveSystemFolder() { }

void OnWindows::endWithProgram(const QProcess&) { }

#endif
