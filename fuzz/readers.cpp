// Harnesses for what reads more than plain texts out of what comes from outside: READER names the function that gets
// the input.

#include "Description.h"
#include "JtagMkII.h"
#include "app/KorvelApp.h"
#include "app/log/AvrdudeMessage.h"
#include "app/record/SettingsRecord.h"
#include "avrdude/Avrdude.h"
#include "avrdude/ExtraArguments.h"
#include "avrdude/ReadFile.h"
#include "base/Box.h"
#include "base/JsonFile.h"
#include "fuses/FuseRequests.h"
#include "fuses/FusesByteModel.h"
#include "i18n/JsonToQtTranslator.h"
#include "i18n/LanguageFiles.h"
#include "i18n/TsConverter.h"
#include "mcu/description/BytesModel.h"
#include "mcu/description/SignatureIndex.h"
#include "memory/FirmwareFile.h"
#include "memory/MemoryKind.h"
#include "profiles/ConfigurationView.h"
#include "profiles/ProgrammingView.h"
#include "settings/SettingsView.h"
#include "support/BoxAnswerer.h"
#include "support/WorkFolder.h"
#include "update/UpdateChecker.h"

#include <QNetworkReply>

void allowFolders(const std::string& first, const std::string& second);

/// What every harness starts with: an application without a screen, a working folder, and a hand that closes boxes.
struct Fuzz {
    int argc = 1;
    char name[5] = "fuzz";
    char* argv[2] = {name, nullptr};
    bool silenced = (qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {}), true);
    QApplication application {argc, argv};
    WorkFolder folder;
    BoxAnswerer boxes;
};

/// The settings file, which is also what a profile is: read, written, and read again it must be the same.
void settings(Fuzz& fuzz, const QByteArray& input)
{
    fuzz.folder.write("save.json", input);
    SettingsRecord first;
    if (!first.loadFromFile("save.json"))
        return;
    SettingsRecord second;
    if (!first.saveToFile("first.json") || !second.loadFromFile("first.json") || !second.saveToFile("second.json")
        || fuzz.folder.read("first.json") != fuzz.folder.read("second.json"))
        std::abort();
}

/// A profile, picked in the list of the whole window by somebody who says no to every question: the program stays the
/// one in use, and what would be sent names no file but those that are shown.
void profile(Fuzz& fuzz, const QByteArray& input)
{
    static auto& window = *new KorvelApp;
    fuzz.folder.write("profiles/X.json", input);
    auto& avrdude = *window.findChild<Avrdude*>();
    SettingsRecord& record = avrdude.settings();
    record = {};
    window.refreshPanels();
    emit window.findChild<ProgrammingView*>()->profiles()->textActivated("X");
    bool isSafe =
        record.avrdude == "avrdude" && ExtraArguments(record.arguments).reachingFiles(ExtraArguments({})).isEmpty();
    for (const MemoryKind* kind : {&MemoryKind::flash, &MemoryKind::eeprom}) {
        const QStringList command = kind->commandFor(record).value_or(QStringList());
        const QString& path = record.*kind->writeFile;
        isSafe = isSafe
            && (command.isEmpty()
                || (command.size() == 2 && command[0] == "-U"
                    && command[1].startsWith(kind->memory + QString(":w:") + path)));
    }
    for (const QString& file : FuseRequests::files(record.fusesBytes))
        isSafe = isSafe && !file.contains('/') && !file.contains('\\');
    if (!isSafe)
        std::abort();
}

/// Messages to a virtual programmer, the chip and their lengths in front: as they are, and with a right frame.
void protocol(Fuzz& /*fuzz*/, const QByteArray& input)
{
    static const QStringList folders {DATA_FOLDER "/mcu"};
    const auto part = [](const QString& name) {
        QString error;
        return *MappedPart::described(*Description::read(name, folders, error));
    };
    static const std::array parts {part("ATtiny1614"), part("AVR128DA48"), part("ATxmega128A4U")};
    MappedChip chip(parts[input.isEmpty() ? 0 : static_cast<uchar>(input[0]) % parts.size()]);
    JtagMkII programmer(chip);
    static_cast<void>(programmer.receive(input));
    programmer.beginConnection();
    for (int at = 1; at < input.size();) {
        const QByteArray body = input.mid(at + 1, static_cast<uchar>(input[at]));
        at += 1 + static_cast<int>(body.size());
        QByteArray frame =
            QByteArray("\x1B\0\0", 3) + static_cast<char>(body.size()) + QByteArray(3, '\0') + '\x0E' + body;
        const quint16 sum = JtagMkII::checksumOf(frame);
        frame += static_cast<char>(sum);
        if (programmer.receive(frame + static_cast<char>(sum >> 8)).isEmpty())
            std::abort(); // what is whole has an answer
    }
    const ChipState& state = chip.state();
    const ChipState& factory = chip.shape().factory;
    if (state.flash.size() != factory.flash.size() || state.eeprom.size() != factory.eeprom.size()
        || state.lock.size() != factory.lock.size() || state.fuses.size() != factory.fuses.size())
        std::abort();
}

/// A programmer's entry in the catalogue, picked in the list.
void programmer(Fuzz& fuzz, const QByteArray& input)
{
    fuzz.folder.write("programmer/X.json", input);
    static auto& window = *new KorvelApp; // whose list has the first
    window.findChild<SettingsView*>()->programmer()->setCurrentIndex(-1);
    window.findChild<SettingsView*>()->programmer()->setCurrentText("X");
}

/// A language file, in a few views and a box.
void language(Fuzz& fuzz, const QByteArray& input)
{
    static const bool isSet = qputenv("APPIMAGE", QFile::encodeName(QDir().absoluteFilePath("package")));
    static_cast<void>(isSet);
    fuzz.folder.write("Languages/X.json", input);
    JsonToQtTranslator translator;
    translator.loadLanguage("X");
    QCoreApplication::installTranslator(&translator);
    const ConfigurationView view;
    Box::tell(nullptr, "X", JsonFile().faultText(), JsonFile().reason());
}

/// The description of a microcontroller: loaded, shown in the Fuses tab, and changed there.
void description(Fuzz& fuzz, const QByteArray& input)
{
    fuzz.folder.write("mcu/X.json", input);
    static_cast<void>(SignatureIndex().find("1E 94 03"));
    if (JsonFile::read("mcu/X.json").state != JsonFile::State::Parsed)
        return; // turned away with a box
    Avrdude avrdude(nullptr, nullptr);
    BytesModel(avrdude.settings()).load("X");
    FuseBytes& bytes = avrdude.settings().fusesBytes;
    for (int i = 0; i < bytes.size(); ++i) {
        FusesByteModel model(bytes, i);
        model.setByte(0xA5);
        model.setBit(7, true);
        if (bytes[i].currentValue > 0xFF)
            std::abort();
    }
    if (FuseRequests::write(bytes).isEmpty()) // the lock byte's argument is always there
        std::abort();
}

/// A translation source: whatever it holds, what the converter writes is a language file.
void translation(Fuzz& fuzz, const QByteArray& input)
{
    fuzz.folder.write("x.ts", input);
    static_cast<void>(convertTsToJson("x.ts", "Fuzz"));
    if (!JsonFile::read(LanguageFiles::path(QCoreApplication::applicationDirPath(), "Fuzz")).isObject())
        std::abort();
}

/// The update server's reply.
void update(Fuzz&, const QByteArray& input)
{
    static QNetworkAccessManager manager;
    static UpdateChecker checker;
    const QUrl url("data:application/json;base64," + QString::fromLatin1(input.toBase64()));
    checker.onReplyFinished(manager.get(QNetworkRequest(url)));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

/// avrdude's output, in pieces as a pipe delivers it, which give the verdict of the whole, and the files that it reads
/// fuse bytes into.
void output(Fuzz& fuzz, const QByteArray& input)
{
    static AvrdudeMessage log;
    static const Message messages;
    Toolkit::Utf8Decoder decoder;
    Message::Findings inPieces;
    Message::Findings atOnce;
    QString all;
    log.clear();
    constexpr int piece = 7;
    for (int i = 0; i < input.size(); i += piece) {
        const QString text = decoder.decode(input.mid(i, piece));
        static_cast<void>(Message::showsSilentProgrammer(text));
        log.insertAtCursor(text);
        all += text;
        messages.search(all, inPieces);
    }
    messages.search(all, atOnce);
    if (inPieces.first != atOnce.first)
        std::abort();
    static_cast<void>(messages.checkFailedRun(all));
    fuzz.folder.write("lfuse.hex", input);
    ReadFile().readFiles({"lfuse.hex"}, [](const QStringList& values) {
        if (values.size() != 1)
            std::abort();
    });
}

/// A file for a memory, of whatever format.
void firmware(Fuzz& fuzz, const QByteArray& input)
{
    fuzz.folder.write("a.hex", input);
    for (const char* format : {"i", "r", "e", "a", "m"}) {
        for (const char* memory : {"flash", "eeprom"})
            static_cast<void>(FirmwareFile::read("a.hex", format, memory, 4096));
    }
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static auto& fuzz = *new Fuzz; // and the windows: at the end of the program the toolkit has gone before them
    fuzz.boxes.button = QMessageBox::No;
    allowFolders(QDir::currentPath().toStdString(),
                 LanguageFiles::folder(QCoreApplication::applicationDirPath()).toStdString());
    READER(fuzz, {reinterpret_cast<const char*>(data), static_cast<int>(size)});
    allowFolders({}, {});
    return 0;
}
