// korvel-ts2json FILE.ts LANGUAGE: makes the language file LANGUAGE.json of a translation source, in the folder
// "Languages" beside this tool. What came of it is printed; the status tells wrong arguments only.

#include "i18n/LanguageFiles.h"
#include "i18n/TsConverter.h"

#include <QCoreApplication>

#include <cstdio>

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    LanguageFiles::useUtf8Names();
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 3) {
        std::fputs("Usage: korvel-ts2json FILE.ts LANGUAGE\n", stderr);
        return 2;
    }
    convertTsToJson(arguments.at(1), arguments.at(2));
    return 0;
}
