#include "avrdude/Message.h"

#include <QApplication>
#include <QMessageBox>
#include <QRegularExpression>

#include <algorithm>

namespace {

struct Row {
    const char* fragment; ///< what avrdude prints; the letter case counts
    const char* message; ///< for the user, translated
};

constexpr char notFound[] = QT_TRANSLATE_NOOP("Message", "Programmer not found.");
constexpr char noTarget[] = QT_TRANSLATE_NOOP("Message",
                                              "Programmer did not detect the microcontroller\n\n"
                                              "- Check connections and power supply\n"
                                              "- Set a lower speed (Port & Speed)");
constexpr char nothingToRead[] = QT_TRANSLATE_NOOP("Message",
                                                   "Could not read contents\n"
                                                   "Device is either blank or read-protected (Lock Bits are set).");
constexpr char wrongPart[] = QT_TRANSLATE_NOOP("Message", "Wrong microcontroller selected.");
constexpr char mismatch[] = QT_TRANSLATE_NOOP("Message", "Verification error.");
constexpr char badFormat[] = QT_TRANSLATE_NOOP("Message", "Invalid file format. Please choose another file.");
constexpr char seeLog[] = QT_TRANSLATE_NOOP("Message", "See the message in the dialog box.");

/// The first row that matches wins, so the order is part of the table.
constexpr Row rows[] = {
    {"error: unable to open programmer", notFound},
    {"cannot open port", notFound},
    {"USBasp not found", QT_TRANSLATE_NOOP("Message", "UsbAsp not found.")},
    {"\"usb\" failed", notFound},
    {"programmer is not responding", notFound},
    {"can't open device", notFound},
    {"error: program enable: target does", noTarget},
    {"Device signature = 0xffffff", noTarget},
    {"is empty, resulting file", nothingToRead},
    {"use -F to override this check", wrongPart},
    {"verification mismatch", mismatch},
    {"verification error", mismatch},
    {"No such file or directory", QT_TRANSLATE_NOOP("Message", "No such file or directory.")},
    {"ERROR: No valid record found", badFormat},
    {"Invalid file format", badFormat},
    {"err2or", seeLog}, // deliberately dead: avrdude prints no such thing
    {"ERROR:", seeLog},
    {"error:", seeLog},
};

/// What counts only together with an exit code other than 0. Neither is enough: 8.x also says "Error:" before troubles
/// that it mends by itself, and an exit code alone may be that of something else in avrdude's place, which nobody
/// promised anything about. Beside each fragment stand the versions that it is there for; others print some of them
/// too, and are found by the first table. One that begins with a line break is looked for at the beginning of a line.
constexpr Row failureRows[] = {
    {"Connect failed", notFound}, // 6.3
    {"Could not find USBtiny device", notFound}, // 6.3, 7.0
    {"No matching USB device found", notFound}, // 6.3, 7.0
    {"Did not find any device matching", notFound}, // 6.3, 7.0
    {"avrftdi_open(", notFound}, // 6.3, 7.0
    {"Cannot connect", notFound}, // 7.0
    {"opening programmer \"", notFound}, // 7.0, which goes on: ... on port "..." failed
    {"Can't find programmer id", notFound}, // 6.3, 7.0; ends most runs early, but not when it comes in two pieces
    {"cannot find programmer id", notFound}, // 8.x
    {"unable to open port", notFound}, // 8.x
    {"Invalid device signature", noTarget}, // 6.3, 7.0
    {"invalid device signature", noTarget}, // 8.x
    {"initialization failed", noTarget}, // 6.3, 7.0, 8.x
    {"target does not answer", noTarget}, // 8.x
    {"expected signature for", wrongPart}, // 8.x
    {"no valid record found", badFormat}, // 8.x
    {"memory type not defined", seeLog}, // 6.3, 7.0
    {"Valid parts are:", seeLog}, // 6.3, 7.0
    {"\nError:", seeLog}, // 8.x; its "OS error:" the first table knows
    // No failure of itself, but avrdude's own voice: up to 7.x most lines begin so, and 8.x takes leave so. It was
    // avrdude then that ended with this exit code, whatever went wrong. 6.3 has no word at all for some absent
    // programmers.
    {"\navrdude", seeLog},
    {"\nAvrdude done.", seeLog},
};

constexpr const char* silentProgrammer[] = {
    "getsync()",   "programmer is not responding", "failed to synchronize", "Can't find programmer id", "not in sync",
    "(): timeout", "avrdude error: timeout",
};

void tellPlainly(const QString& message)
{
    QMessageBox::warning(QApplication::activeWindow(), QStringLiteral("AVRDUDE"), message);
}

} // namespace

Message::Message()
    : m_tell(tellPlainly)
{
    for (const Row& row : rows) {
        const QLatin1String fragment(row.fragment);
        m_entries.append({fragment, tr(row.message)});
        m_longestFragment = std::max(m_longestFragment, static_cast<int>(fragment.size()));
    }
    for (const Row& row : failureRows)
        m_failureEntries.append({QLatin1String(row.fragment), tr(row.message)});
}

void Message::search(const QString& text, Findings& findings) const
{
    const int from = std::max(0, findings.searched - m_longestFragment); // one may have come in two pieces
    const int end = findings.first < 0 ? static_cast<int>(m_entries.size()) : findings.first;
    for (int i = 0; i < end; ++i) {
        if (text.indexOf(m_entries.at(i).fragment, from) >= 0) {
            findings.first = i;
            break;
        }
    }
    findings.searched = static_cast<int>(text.size());
}

bool Message::checkOutput(const QString& text, Findings findings) const
{
    search(text, findings);
    if (findings.first < 0)
        return false;
    m_tell(m_entries.at(findings.first).message);
    return true;
}

bool Message::checkFailedRun(const QString& output) const
{
    QString lines = QLatin1Char('\n') + output;
    lines.replace(QLatin1Char('\r'), QLatin1Char('\n'));
    const auto found = std::find_if(m_failureEntries.begin(), m_failureEntries.end(),
                                    [&lines](const Entry& entry) { return lines.contains(entry.fragment); });
    if (found == m_failureEntries.end())
        return false;
    m_tell(found->message);
    return true;
}

bool Message::checkSilentChip(const QString& output) const
{
    static const QRegularExpression silent(
        QStringLiteral("initialization failed|no device\\r?$|target does(n't| not) answer|program enable: target|"
                       "nvalid device signature"),
        QRegularExpression::MultilineOption);
    // Nothing but ones or zeros is what lines read that nobody drives.
    static const QRegularExpression signature(
        QStringLiteral("device signature = (0x)?(?!(0x)?(ff ?ff ?ff|00 ?00 ?00))[0-9a-f]"),
        QRegularExpression::CaseInsensitiveOption);
    if (!output.contains(silent) || output.contains(signature))
        return false;
    m_tell(tr(noTarget));
    return true;
}

bool Message::showsSilentProgrammer(const QString& errorText)
{
    return std::any_of(std::begin(silentProgrammer), std::end(silentProgrammer),
                       [&errorText](const char* fragment) { return errorText.contains(QLatin1String(fragment)); });
}

QString Message::signatureIn(const QString& output)
{
    static const QRegularExpression read(
        QStringLiteral("signature = (?:0x)?([0-9a-f]{2}) ?([0-9a-f]{2}) ?([0-9a-f]{2})"),
        QRegularExpression::CaseInsensitiveOption);
    QString signature;
    for (auto found = read.globalMatch(output); found.hasNext();) // avrdude tries again: the last one counts
        signature = found.next().capturedTexts().mid(1).join(QLatin1Char(' ')).toUpper();
    const bool isNone = signature == QLatin1String("FF FF FF") || signature == QLatin1String("00 00 00");
    return isNone ? QString() : signature;
}
