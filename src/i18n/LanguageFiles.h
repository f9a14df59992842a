#pragma once

#include <QString>

/// Where the interface's language files lie.
namespace LanguageFiles {

/// The folder of the package file that the environment variable "APPIMAGE" names, else the application's folder.
[[nodiscard]] QString baseFolder();

/// Path of the file of @p language (a name as the language list shows it) below the base folder.
[[nodiscard]] QString path(const QString& language);

/// The folder of the language files beside the program, wherever the package lies.
[[nodiscard]] QString folderBesideProgram();

/// Path of the file of @p language in that folder.
[[nodiscard]] QString pathBesideProgram(const QString& language);

/// Makes the names of files UTF-8 whatever the locale says (that of a bare system is plain ASCII): languages are named
/// as their speakers write them. To be called before the first file is opened.
void useUtf8Names();

} // namespace LanguageFiles
