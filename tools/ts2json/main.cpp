// korvel-ts2json FILE.ts LANGUAGE: makes the language file LANGUAGE.json of a translation source, in the folder
// "Languages" beside this tool. What came of it is printed. Ends with 1 when the source could not be read to its end
// or the file not be written, with 2 for wrong arguments.

#include "base/Toolkit.h"
#include "i18n/TsConverter.h"

#include <QCoreApplication>

#include <cstdio>
#include <cstdlib>

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    Toolkit::useUtf8Names();
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 3) {
        std::fputs("Usage: korvel-ts2json FILE.ts LANGUAGE\n", stderr);
        return 2;
    }
    return convertTsToJson(arguments.at(1), arguments.at(2)) ? EXIT_SUCCESS : EXIT_FAILURE;
}
