// avrdude's output, in pieces as a pipe delivers it, and the files that it reads fuse bytes into.

#include "Fuzz.h"
#include "app/AvrdudeMessage.h"
#include "avrdude/Message.h"
#include "avrdude/ReadFile.h"
#include "base/Toolkit.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const Fuzz& fuzz = Fuzz::instance();
    static AvrdudeMessage log;
    static const Message messages;
    const QByteArray output = inputOf(data, size);
    Toolkit::Utf8Decoder decoder;
    log.clear();
    constexpr int piece = 7;
    for (int i = 0; i < output.size(); i += piece) {
        const QString text = decoder.decode(output.mid(i, piece));
        static_cast<void>(Message::showsSilentProgrammer(text));
        log.insertAtCursor(text);
    }
    static_cast<void>(messages.checkOutput(log.document()->toRawText()));
    static_cast<void>(messages.checkFailedRun(log.toPlainText()));
    fuzz.folder.write("lfuse.hex", output);
    ReadFile().readFiles({"lfuse.hex"}, [](const QStringList& values) {
        if (values.size() != 1)
            std::abort();
    });
    return 0;
}
