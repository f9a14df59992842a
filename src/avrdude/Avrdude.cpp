#include "avrdude/Avrdude.h"

#include "app/log/AvrdudeMessage.h"
#include "base/Box.h"
#include "base/ProductInfo.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QPushButton>
#include <QStandardPaths>
#include <QTimer>

#include <algorithm>
#include <iterator>

namespace {

constexpr int startTimeout = 30000; // milliseconds
constexpr char partProperty[] = "part"; // of a button that stands for one

/// "375 kHz (-B 2)" and "-B 2" both give "-B 2".
QString bitClockOption(const QString& speed)
{
    return speed.split(QLatin1Char('(')).constLast().split(QLatin1Char(')')).constFirst();
}

/// What every run begins with.
QStringList commonArguments(const SettingsRecord& settings)
{
    QStringList frame {
        QStringLiteral("-p"),   settings.mcuId,       QStringLiteral("-c"),
        settings.programmer.id, QStringLiteral("-P"), settings.port,
    };
    frame += settings.arguments.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    frame += bitClockOption(settings.speed); // one argument, blank included: avrdude takes it so
    return frame;
}

/// Whether a start of @p program would find it: a path where that leads, a bare name where the system looks for names.
bool isFound(const QString& program)
{
    if (QDir::fromNativeSeparators(program).contains(QLatin1Char('/')))
        return !QStandardPaths::findExecutable(program, {QDir::currentPath()}).isEmpty();
#ifdef Q_OS_WIN
    if (!QStandardPaths::findExecutable(program, {QCoreApplication::applicationDirPath(), QDir::currentPath()})
             .isEmpty())
        return true;
#endif
    return !QStandardPaths::findExecutable(program).isEmpty();
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
    return mayUsePort() ? execute(m_settings, arguments, std::move(callback)) : 0;
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
    m_process->start(program, allArguments);
    m_text = ProductInfo::name + QLatin1String(": ") + program + QLatin1Char(' ') + allArguments.join(QLatin1Char(' '))
        + QLatin1Char('\n');
    m_outputBegin = static_cast<int>(m_text.size());
    m_findings = {};
    m_log->appendPlainText(m_text);
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
        return -1;
    }
    return 0;
}

int Avrdude::executeReading(const QStringList& arguments, const QStringList& files, Callback callback)
{
    if (turnsAway() || !mayUsePort())
        return 0; // the files may be those of the run in progress
    const bool mayStart = isFound(m_settings.avrdude);
    m_filesOfReading.clear();
    for (const QString& file : files) {
        if (mayStart)
            QFile::remove(file);
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

QString Avrdude::ownPort(const SettingsRecord& settings)
{
    const QStringList arguments = settings.arguments.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    const auto found = std::find_if(arguments.rbegin(), arguments.rend(),
                                    [](const QString& argument) { return argument.startsWith(QLatin1String("-P")); });
    if (found == arguments.rend())
        return {};
    const bool isSeparate = found->size() == 2 && found != arguments.rbegin();
    return isSeparate ? *std::prev(found) : found->mid(2);
}

bool Avrdude::mayUsePort()
{
    if (isBusy() || !m_settings.hasFormerPort || !ownPort(m_settings).isNull())
        return true;
    const QString question = tr("No serial port was found for %1: the port is still %2.");
    m_settings.hasFormerPort =
        !Box::ask(QApplication::activeWindow(), ProductInfo::name,
                  question.arg(m_settings.programmer.name, m_settings.port), tr("Do you want to use it all the same?"));
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
