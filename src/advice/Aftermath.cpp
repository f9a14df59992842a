#include "advice/Aftermath.h"

#include "avrdude/FailedRun.h"

#include <QCoreApplication>
#include <QRegularExpression>

namespace {

QString say(const char* sentence)
{
    return QCoreApplication::translate("Aftermath", sentence);
}

/// How one memory is called in the sentences about an operation on it.
struct Sentences {
    const char* memory; ///< pattern for avrdude's name
    const char* written;
    const char* verified;
    const char* read;
};

constexpr Sentences sentences[] = {
    {"^flash$", QT_TRANSLATE_NOOP("Aftermath", "Writing the flash failed."),
     QT_TRANSLATE_NOOP("Aftermath", "Verifying the flash failed."),
     QT_TRANSLATE_NOOP("Aftermath", "Reading the flash failed.")},
    {"^eeprom$", QT_TRANSLATE_NOOP("Aftermath", "Writing the EEPROM failed."),
     QT_TRANSLATE_NOOP("Aftermath", "Verifying the EEPROM failed."),
     QT_TRANSLATE_NOOP("Aftermath", "Reading the EEPROM failed.")},
    {"fuse|lock|cfg$", QT_TRANSLATE_NOOP("Aftermath", "Writing the fuse bytes failed."),
     QT_TRANSLATE_NOOP("Aftermath", "Verifying the fuse bytes failed."),
     QT_TRANSLATE_NOOP("Aftermath", "Reading the fuse bytes failed.")},
    {"^calibration$", nullptr, nullptr, QT_TRANSLATE_NOOP("Aftermath", "Reading the calibration byte failed.")},
};

} // namespace

QString Aftermath::operation(const FailedRun& run)
{
    static const QRegularExpression request(QStringLiteral("-U ?(\\w+):([wvr]):"));
    const auto found = request.match(run.arguments.join(QLatin1Char(' ')));
    for (const Sentences& of : sentences) {
        if (!found.captured(1).contains(QRegularExpression(QLatin1String(of.memory))))
            continue;
        const QString letter = found.captured(2);
        const char* sentence = letter == QLatin1String("w") ? of.written
            : letter == QLatin1String("v")                  ? of.verified
                                                            : of.read;
        if (sentence)
            return say(sentence);
    }
    return run.arguments.contains(QLatin1String("-e")) ? say(QT_TRANSLATE_NOOP("Aftermath", "Erasing the chip failed."))
                                                       : QString();
}

QString Aftermath::chip(const FailedRun& run, bool isBootLoader)
{
    const QString& output = run.output;
    const bool isMemory =
        run.arguments.join(QLatin1Char(' ')).contains(QRegularExpression(QStringLiteral("-U (flash|eeprom):")));
    // "device 0xff != input 0x00 at addr 0x0012 (error)" from 7.1 on, "first mismatch at byte 0x0012" before.
    static const QRegularExpression mismatch(
        QStringLiteral(" at addr (0x[0-9a-fA-F]+) \\(error\\)|mismatch at byte (0x[0-9a-fA-F]+)"));
    const auto differs = mismatch.match(output);
    if (differs.hasMatch() && isMemory)
        return say(QT_TRANSLATE_NOOP("Aftermath", "The chip differs from the file at address %1."))
            .arg(differs.captured(1) + differs.captured(2));
    static const QRegularExpression writing(
        QStringLiteral("writing (\\d+ bytes? )?(flash|eeprom)\\b|Writing \\d+ bytes? to (flash|eeprom)\\b"));
    static const QRegularExpression written(
        QStringLiteral("bytes? of (flash|eeprom) (written|verified)|\\d+ bytes? written"));
    if (output.contains(writing) && !output.contains(written))
        return say(QT_TRANSLATE_NOOP("Aftermath", "Writing had begun: the chip may hold a part of the file."));
    static const QRegularExpression fuses(QStringLiteral("[Ww]riting .*(fuse|lock)"));
    if (output.contains(fuses))
        return say(QT_TRANSLATE_NOOP("Aftermath", "Writing had begun: the chip may have some of the fuse bytes."));
    // That it erases, avrdude says before it does. What it says of the file is said after it has.
    static const QRegularExpression erased(QStringLiteral("^(avrdude: )?[Ee]rasing chip\\r?$.*(file|record|section)"),
                                           QRegularExpression::MultilineOption
                                               | QRegularExpression::DotMatchesEverythingOption);
    if (output.contains(erased) && !output.contains(written) && !isBootLoader)
        return say(QT_TRANSLATE_NOOP("Aftermath", "The chip was erased, and nothing was written: its flash is empty."));
    if (run.isStopped && !isBootLoader && output.contains(QLatin1String("rasing chip")) && !output.contains(written))
        return say(QT_TRANSLATE_NOOP("Aftermath", "Erasing had begun: the chip may be empty."));
    return {};
}
