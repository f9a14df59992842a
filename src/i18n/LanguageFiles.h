#pragma once

#include <QString>

/// Where the interface's language files lie.
namespace LanguageFiles {

/// Where what was installed with the program is found: the folder of the package file that the environment variable
/// "APPIMAGE" names, else the application's folder.
[[nodiscard]] QString baseFolder();

/// The folder of the language files below @p base.
[[nodiscard]] QString folder(const QString& base);

/// Path of the file of @p language (a name as the language list shows it) in that folder; null as jsonPath() says.
[[nodiscard]] QString path(const QString& base, const QString& language);

} // namespace LanguageFiles
