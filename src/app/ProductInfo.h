#pragma once

#include <QLatin1String>

/// What this program calls itself and where it keeps its settings.
namespace ProductInfo {

inline constexpr QLatin1String name("Korvel");

/// The released version, set once in the build files.
inline constexpr QLatin1String version(KORVEL_VERSION);

/// Relative on purpose: the settings belong to the working directory the program is started in.
inline constexpr QLatin1String settingsFile("save.json");

inline constexpr QLatin1String defaultLanguage("English");

} // namespace ProductInfo
