// A translation source: whatever it holds, what the converter writes is a language file.

#include "Fuzz.h"
#include "i18n/LanguageFiles.h"
#include "i18n/TsConverter.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    Fuzz::instance().folder.write("x.ts", inputOf(data, size));
    static_cast<void>(convertTsToJson("x.ts", "Fuzz"));
    if (!JsonFile::read(LanguageFiles::path(QCoreApplication::applicationDirPath(), "Fuzz")).isObject())
        std::abort();
    return 0;
}
