#pragma once

#include <QString>

/// Turns the translation source at @p tsFilePath, as Qt Linguist keeps it, into the language file "LANGUAGE.json" in
/// the folder "Languages" beside the program. What is not translated maps to its English text. Whatever comes of it is
/// told in the debug log; a file is converted up to where it stops being XML or has plural forms, which language files
/// cannot hold. Returns true when all of the source was read and all of the language file written; a file that could
/// not be written whole is left as it was.
[[nodiscard]] bool convertTsToJson(const QString& tsFilePath, const QString& languageName);
