#pragma once

#include "app/record/FusesOnChip.h"
#include "app/record/SettingsRecord.h"
#include "avrdude/FailedRun.h"
#include "avrdude/Message.h"
#include "avrdude/Progress.h"
#include "base/Toolkit.h"

#include <QObject>
#include <QProcess>

#include <functional>

class AvrdudeMessage;

/// The program's only way of acting on a chip: runs avrdude, one run at a time, streams its output into the log and
/// decides from that text, and hardly from the exit code, whether the run succeeded. Also holds the one settings
/// record, which all panels share. Owned by the main window. On closing the log goes first, while avrdude may still
/// run.
class Avrdude : public QObject
{
    Q_OBJECT

public:
    using Callback = std::function<void()>;

    /// Says what is to be told of a failed run below its message.
    using Explainer = std::function<Explanation(const FailedRun& run)>;

    Avrdude(QObject* parent, AvrdudeMessage* log);
    ~Avrdude() override;

    /// Starts avrdude with the common frame (part, programmer, port, the user's extra arguments, bit clock) followed by
    /// @p arguments, each of which reaches avrdude as one argument, blanks included. @p callback runs after a run that
    /// ended normally and of which no failure is known; then the next run may be started. Failures show their own
    /// boxes.
    ///
    /// A call during a run is dropped, as is one that the user forbids: it returns 0 and its callback never runs.
    /// Returns -1 when avrdude could not be started within 30 seconds; the log says why, and the runner stays busy
    /// until the program ends.
    int execute(
        const QStringList& arguments, Callback callback = [] {});

    /// The same with the program and the frame of @p settings instead of the record's: for several runs that belong
    /// together whatever is chosen between them.
    int execute(const SettingsRecord& settings, const QStringList& arguments, Callback callback);

    /// execute() for a run that writes what it reads from the chip into @p files, for the record. Files of former
    /// readings go before it starts, so that none of them is taken for its own; they stay when avrdude cannot be found.
    /// @p callback is left out when another microcontroller or profile has taken the record over meanwhile: what was
    /// read is not theirs. When one of the files is larger than anything that is read so, it is somebody's: a box says
    /// so, and nothing is started.
    int executeReading(const QStringList& arguments, const QStringList& files, Callback callback);

    /// Of the last executeReading() the files but those that could not be removed: these would tell of a former
    /// reading.
    [[nodiscard]] const QStringList& filesOfReading() const { return m_filesOfReading; }

    /// True while avrdude runs, and for good once it could not be started: a call of execute() would be dropped.
    [[nodiscard]] bool isBusy() const { return m_process != nullptr; }

    /// True while avrdude runs.
    [[nodiscard]] bool isRunning() const { return m_process && m_process->state() == QProcess::Running; }

    /// isBusy(), for who has something to do before a run. When it is, the user gets a sign that the click has gone
    /// nowhere.
    [[nodiscard]] bool turnsAway();

    /// Ends the present run for the user, politely and, if that has not helped within 2 seconds, by force. Its own box
    /// tells what the chip may hold; the callback does not run, whatever had been done.
    void stop();

    /// Whether a run may start with the record's settings. None may when the part's identifier is no identifier, an
    /// argument holds what cannot be seen, or the port is a file, as the log then says. Asks the user, once, when the
    /// port belongs to the programmer before and the present one has none: what is plugged in there may be another
    /// chip. What runs with the record's settings asks by itself, and does nothing when the answer is no.
    [[nodiscard]] bool mayStart();

    [[nodiscard]] SettingsRecord& settings() { return m_settings; }

    /// What is known of the fuse bytes of chips. Who reads or writes them notes it.
    [[nodiscard]] FusesOnChip& fusesOnChip() { return m_fusesOnChip; }

    /// What avrdude has printed in the current or last run, as it came, without the command line. What the log shows of
    /// it may be cut in two where the user clicked, or hold other lines.
    [[nodiscard]] QString output() const { return m_text.mid(m_outputBegin); }

    /// From now on failures are told with what @p explainer has to add.
    void setExplainer(Explainer explainer) { m_explain = std::move(explainer); }

    /// The log that runs are echoed into.
    [[nodiscard]] AvrdudeMessage& log() { return *m_log; }

signals:
    /// The user chose the microcontroller called @p name in the box of a failure.
    void partChosen(const QString& name);

    /// avrdude has done @p percent of what it says to be doing, as in Progress.
    void progressed(const QString& activity, int percent);

    /// A run has failed, or could not be started; @p message is what the user is about to be told.
    void failed(const QString& message);

    /// A call was dropped because of the run in progress.
    void turnedAway();

    /// A run begins, or has ended in whatever way and what came of it is about to be told. Not sent when the runner
    /// goes while avrdude runs.
    void runningChanged(bool isRunning);

public slots:
    /// Moves freshly printed output into the log, and ends the run when it shows that the programmer does not answer.
    /// Returns 0.
    int addEditText();

private:
    void tellFailure(const QString& title, const QString& message);
    void finishRun(int exitCode, QProcess::ExitStatus status, const Callback& callback);

    QProcess* m_process = nullptr; ///< the current run; null when idle
    AvrdudeMessage* m_log;
    SettingsRecord m_settings;
    FusesOnChip m_fusesOnChip;
    Message m_messages;
    Explainer m_explain = [](const FailedRun&) { return Explanation(); };
    FailedRun m_run; ///< the current or last one, without its output
    Progress m_progress;
    bool m_killedOnError = false; ///< we ended the current run ourselves, and have told the user
    QString m_text; ///< the command line and the output of the current or last run, as they came
    int m_outputBegin = 0; ///< in that text
    Message::Findings m_findings; ///< in that text
    QStringList m_filesOfReading;
    Toolkit::Utf8Decoder m_errorDecoder; ///< one a channel, begun anew with each run
    Toolkit::Utf8Decoder m_outputDecoder;
};
