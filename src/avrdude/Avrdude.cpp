#include "avrdude/Avrdude.h"

#include "app/log/AvrdudeMessage.h"
#include "app/record/Identifier.h"
#include "avrdude/ExtraArguments.h"
#include "base/Box.h"
#include "base/JsonFile.h"
#include "base/OnWindows.h"
#include "base/ProductInfo.h"
#include "base/ShownText.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QPushButton>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTimer>

#include <algorithm>
#include <iterator>

namespace {

constexpr int longestName = 40; // characters of a name in a sentence
constexpr int startTimeout = 30000; // milliseconds
constexpr int largestReading = 16; // bytes: a fuse byte has one, the lock of an AVR DA four; firmware has more
constexpr char partProperty[] = "part"; // of a button that stands for one

/// "375 kHz (-B 2)" and "-B 2" both give "-B 2".
QString bitClockOption(const QString& speed)
{
    return speed.split(QLatin1Char('(')).constLast().split(QLatin1Char(')')).constFirst();
}

/// Whether @p option sets the bit clock, with a unit or without one, or is empty; and nothing else.
bool isBitClock(const QString& option)
{
    static const QRegularExpression clock(QRegularExpression::anchoredPattern(
        QStringLiteral("(-B *\\+?([0-9]+\\.?[0-9]*|\\.[0-9]+)(e[+-]?[0-9]+)? *[a-zA-Z]{0,3})?")));
    return clock.match(option).hasMatch();
}

/// What every run begins with.
QStringList commonArguments(const SettingsRecord& settings)
{
    QStringList frame {
        QStringLiteral("-p"),   settings.mcuId,       QStringLiteral("-c"),
        settings.programmer.id, QStringLiteral("-P"), settings.port,
    };
    frame += ExtraArguments(settings.arguments).list();
    const QString bitClock = bitClockOption(settings.speed);
    frame += isBitClock(bitClock) ? bitClock : SettingsRecord().speed; // one argument, blank included: avrdude takes it
    return frame;
}

/// Why no run may start with @p settings, for the log; empty when one may.
QString faultOf(const SettingsRecord& settings)
{
    if (!isIdentifier(settings.mcuId))
        return Avrdude::tr("avrdude was not started: %1 is no identifier of a part.")
            .arg(shownText(settings.mcuId, longestName));
    // The system cuts an argument at some of them, and the next one might mean something else then.
    const QString shown = commonArguments(settings).join(QLatin1Char(' '));
    if (hasHidden(shown))
        return Avrdude::tr("avrdude was not started: its arguments hold characters that cannot be seen: %1")
            .arg(shownText(shown));
    const QString own = ExtraArguments(settings.arguments).value('P');
    for (const QString& port : {settings.port, own}) {
        // avrdude would open it for writing. "usb" and "COM3" are none to it, whatever lies in the working folder.
        if (!port.startsWith(QLatin1String("usb")) && !isDeviceName(port) && QFileInfo(port).isFile())
            return Avrdude::tr("avrdude was not started: %1 is a file and no port.").arg(shownText(port));
    }
    return {};
}

bool isPath(const QString& program)
{
#ifdef Q_OS_WIN
    if (program.contains(QLatin1Char(':')))
        return true;
#endif
    return QDir::fromNativeSeparators(program).contains(QLatin1Char('/'));
}

/// Where @p program is: a path where that leads, a bare name in the folders of the search path, and on Windows first
/// beside this program. Not in the working folder, whatever the system or that path say: what lies there may have come
/// with somebody's files. Null when it is nowhere.
QString findProgram(const QString& program)
{
    if (isPath(program))
        return QStandardPaths::findExecutable(program, {QDir::currentPath()});
    QStringList folders;
#ifdef Q_OS_WIN
    folders += QCoreApplication::applicationDirPath();
    static const QRegularExpression ending(QStringLiteral("\\.(exe|com|bat|cmd)$"),
                                           QRegularExpression::CaseInsensitiveOption);
    const QString file = program.contains(ending) ? program : program + QLatin1String(".exe"); // and no script
#else
    const QString& file = program;
    if (!qEnvironmentVariableIsSet("PATH"))
        return QStandardPaths::findExecutable(file); // which knows the system's own
#endif
    const QString here = QDir::current().canonicalPath();
    const auto listed = qEnvironmentVariable("PATH").split(QDir::listSeparator(), Qt::SkipEmptyParts);
    std::copy_if(listed.begin(), listed.end(), std::back_inserter(folders), [&here](const QString& folder) {
        return QDir::isAbsolutePath(folder) && QDir(folder).canonicalPath() != here;
    });
    return folders.isEmpty() ? QString() : QStandardPaths::findExecutable(file, folders);
}

/// Whether @p path leads to an avrdude that stands in for ours, which on Windows ships beside this program.
bool isStranger([[maybe_unused]] const QString& path)
{
#ifdef Q_OS_WIN
    const QFileInfo info(path);
    return info.isFile() && info.path() != QCoreApplication::applicationDirPath();
#else
    return false;
#endif
}

/// What to start for @p program. A bare name that is nowhere is not left for the system to look for: the root folder,
/// where only an administrator puts something, stands for that.
QString pathOf(const QString& program)
{
    if (program.isEmpty() || isPath(program))
        return program;
    const QString found = findProgram(program);
    return found.isNull() ? QDir::rootPath() + program : found;
}

} // namespace

Avrdude::Avrdude(QObject* parent, AvrdudeMessage* log)
    : QObject(parent)
    , m_log(log)
{
    m_messages.setTell([this](const QString& message) { tellFailure(QStringLiteral("AVRDUDE"), message); });
}

Avrdude::~Avrdude()
{
    if (!m_process)
        return;
    // What avrdude still prints reaches nobody: its signals are queued, and the log may be gone by now.
    m_process->kill();
    m_process->waitForFinished();
}

int Avrdude::execute(const QStringList& arguments, Callback callback)
{
    return mayStart() ? execute(m_settings, arguments, std::move(callback)) : 0;
}

int Avrdude::execute(const SettingsRecord& settings, const QStringList& arguments, Callback callback)
{
    if (turnsAway())
        return 0;

    m_run = {settings, arguments, {}, true, false};
    m_progress.begin();
    m_process = new QProcess(this);
    m_killedOnError = false;
    m_errorDecoder.reset();
    m_outputDecoder.reset();

    // Queued, because what these lead to may open a box. The box's event loop goes on delivering the process's events,
    // its end included, and then the process object may be deleted while one of its own functions is still running.
    connect(m_process, &QProcess::readyReadStandardError, this, &Avrdude::addEditText, Qt::QueuedConnection);
    connect(m_process, &QProcess::readyReadStandardOutput, this, &Avrdude::addEditText, Qt::QueuedConnection);
    connect(
        m_process, QOverload<int, QProcess::ExitStatus>::of(&QProcess::finished), this,
        [this, callback = std::move(callback)](int exitCode, QProcess::ExitStatus status) {
            finishRun(exitCode, status, callback);
        },
        Qt::QueuedConnection);

    const QString program = settings.avrdude;
    const QStringList allArguments = commonArguments(settings) + arguments;
    emit runningChanged(true);
    m_log->clear();
    const QString path = pathOf(program);
    m_process->start(path, allArguments);
    m_text = ProductInfo::name + QLatin1String(": ") + program + QLatin1Char(' ') + allArguments.join(QLatin1Char(' '))
        + QLatin1Char('\n');
    m_outputBegin = static_cast<int>(m_text.size());
    m_findings = {};
    m_log->appendPlainText(m_text);
    if (!isBitClock(bitClockOption(settings.speed)))
        m_log->appendLine(tr("%1 is no speed: %2 is used.").arg(shownText(settings.speed), SettingsRecord().speed));
    if (path != program && isStranger(path))
        m_log->appendLine(tr("avrdude is not beside Korvel: %1 is used.").arg(QDir::toNativeSeparators(path)));
    if (!m_process->waitForStarted(startTimeout)) {
        // The process object stays, so the runner stays busy: a missing avrdude is mended by a restart. One that starts
        // after all would work on the chip of somebody who was told that it does not.
        m_process->disconnect(this);
        m_process->kill();
        m_log->appendPlainText(tr("avrdude not found") + m_process->errorString());
        m_run.isStarted = false;
        const auto advice = m_explain(m_run).lines;
        for (const QString& line : advice)
            m_log->appendLine(line);
        emit runningChanged(false);
        emit failed(tr("avrdude not found"));
        return -1;
    }
    OnWindows::endWithProgram(*m_process);
    return 0;
}

int Avrdude::executeReading(const QStringList& arguments, const QStringList& files, Callback callback)
{
    if (turnsAway() || !mayStart())
        return 0; // the files may be those of the run in progress
    for (const QString& file : files) {
        const QFileInfo info(file);
        if (info.isFile() && !info.isSymLink() && info.size() > largestReading) {
            Box::tell(QApplication::activeWindow(), ProductInfo::name, tr("Reading would replace this file:"),
                      fullPath(file) + QLatin1Char('\n') + tr("It is larger than what is read: move it away first."),
                      QMessageBox::Warning);
            return 0;
        }
    }
    const bool isFound = !findProgram(m_settings.avrdude).isNull();
    m_filesOfReading.clear();
    for (const QString& file : files) {
        if (file.isEmpty())
            continue; // nothing is read for that one
        if (isFound)
            QFile::remove(file); // of a link only the link
        if (!QFile::exists(file))
            m_filesOfReading += file;
    }
    return execute(arguments, [this, generation = m_settings.generation, callback = std::move(callback)] {
        if (m_settings.generation == generation)
            callback();
    });
}

bool Avrdude::turnsAway()
{
    if (isBusy())
        emit turnedAway();
    return isBusy();
}

void Avrdude::stop()
{
    if (!m_process || !m_run.isStarted || m_killedOnError || m_run.isStopped)
        return;
    m_run.isStopped = true; // also of one that has just ended: nothing follows it
#ifdef Q_OS_WIN
    m_process->kill(); // a program without a window does not hear of a polite request there
#else
    constexpr int patience = 2000; // milliseconds
    m_process->terminate();
    QTimer::singleShot(patience, m_process, &QProcess::kill);
#endif
}

bool Avrdude::mayStart()
{
    if (isBusy())
        return true; // the call will be dropped
    const QString fault = faultOf(m_settings);
    if (!fault.isEmpty()) {
        m_log->appendLine(fault);
        return false;
    }
    if (!m_settings.hasFormerPort || ExtraArguments(m_settings.arguments).has('P'))
        return true;
    const QString question = tr("No serial port was found for %1: the port is still %2.");
    m_settings.hasFormerPort = !Box::ask(
        QApplication::activeWindow(), ProductInfo::name,
        question.arg(shownText(m_settings.programmer.name, longestName), shownText(m_settings.port, longestName)),
        tr("Do you want to use it all the same?"));
    return !m_settings.hasFormerPort;
}

int Avrdude::addEditText()
{
    if (!m_process)
        return 0;

    const QString errorText = m_errorDecoder.decode(m_process->readAllStandardError());
    const QString outputText = m_outputDecoder.decode(m_process->readAllStandardOutput());
    for (const QString& text : {errorText, outputText}) {
        m_log->insertAtCursor(text);
        m_text += text;
    }
    m_messages.search(m_text, m_findings);
    if (m_progress.take(errorText + outputText))
        emit progressed(m_progress.activity(), m_progress.percent());

    if (!m_killedOnError && !m_run.isStopped && Message::showsSilentProgrammer(errorText)) {
        m_killedOnError = true;
        m_process->kill();
        tellFailure(QStringLiteral("AVRDUDE"), tr("Programmer not found."));
    }
    m_log->ensureCursorVisible();
    return 0;
}

void Avrdude::tellFailure(const QString& title, const QString& message)
{
    emit failed(message);
    FailedRun run = m_run;
    run.output = output();
    const Explanation explanation = m_explain(run);
    QApplication::beep();
    Box box(QMessageBox::Warning, title, message, explanation.lines.join(QLatin1Char('\n')), QMessageBox::Ok,
            QApplication::activeWindow());
    for (const QString& part : explanation.parts)
        box.addButton(part, QMessageBox::ActionRole)->setProperty(partProperty, part);
    box.setDefaultButton(QMessageBox::Ok);
    box.setEscapeButton(QMessageBox::Ok);
    box.exec();
    const QString chosen = box.clickedButton() ? box.clickedButton()->property(partProperty).toString() : QString();
    if (!chosen.isEmpty())
        emit partChosen(chosen);
}

void Avrdude::finishRun(int exitCode, QProcess::ExitStatus status, const Callback& callback)
{
    emit runningChanged(false);
    if (status == QProcess::CrashExit && !m_killedOnError && !m_run.isStopped)
        tellFailure(QStringLiteral("Information"), QStringLiteral("Process avrdude error"));

    m_process->disconnect(this);
    m_process->deleteLater();
    m_process = nullptr;

    if (m_run.isStopped) {
        tellFailure(ProductInfo::name, tr("avrdude was stopped."));
        return;
    }
    // A run that we ended has had its box, even if avrdude was quicker than the kill and exited by itself.
    if (status == QProcess::CrashExit || m_killedOnError)
        return;
    // What counts is what avrdude said; its exit code only lends weight to some of its words. The log's own text has
    // line breaks that avrdude did not print, and what the user clicked into.
    if (exitCode != 0 && m_messages.checkSilentChip(output()))
        return;
    if (m_messages.checkOutput(m_text, m_findings))
        return;
    if (exitCode != 0 && m_messages.checkFailedRun(output()))
        return;
    callback();
}
