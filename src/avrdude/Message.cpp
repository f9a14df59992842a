#include "avrdude/Message.h"

#include <QApplication>
#include <QMessageBox>

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

constexpr const char* silentProgrammer[] = {
    "getsync()",   "programmer is not responding", "failed to synchronize", "Can't find programmer id", "not in sync",
    "(): timeout", "avrdude error: timeout",
};

} // namespace

Message::Message()
{
    for (const Row& row : rows)
        m_entries.append({QLatin1String(row.fragment), tr(row.message)});
}

bool Message::checkOutput(const QString& text) const
{
    const auto found = std::find_if(m_entries.begin(), m_entries.end(),
                                    [&text](const Entry& entry) { return text.contains(entry.fragment); });
    if (found == m_entries.end())
        return false;
    QMessageBox::information(QApplication::activeWindow(), QStringLiteral("AVRDUDE"), found->message);
    return true;
}

bool Message::showsSilentProgrammer(const QString& errorText)
{
    return std::any_of(std::begin(silentProgrammer), std::end(silentProgrammer),
                       [&errorText](const char* fragment) { return errorText.contains(QLatin1String(fragment)); });
}
