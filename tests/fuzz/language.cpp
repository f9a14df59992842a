// A language file, in both of its readers.

#include "Fuzz.h"
#include "i18n/JsonToQtTranslator.h"
#include "i18n/LanguageFiles.h"
#include "i18n/Translator.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const Fuzz& fuzz = Fuzz::instance();
    qputenv("APPIMAGE", QDir::current().filePath("package").toUtf8());
    fuzz.folder.write("Languages/X.json", inputOf(data, size));
    JsonToQtTranslator translator;
    translator.loadLanguage("X");
    static_cast<void>(translator.translate("Any", "Language", nullptr, -1));
    fuzz.folder.write(LanguageFiles::path(QCoreApplication::applicationDirPath(), "Fuzz"), inputOf(data, size));
    Translator::instance().loadLanguage("Fuzz");
    static_cast<void>(Translator::instance().translate("Language"));
    return 0;
}
