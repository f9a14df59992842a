#pragma once

#include <QLatin1String>

/// Constants: what this program calls itself, where it keeps its settings, and whom it belongs to.
namespace ProductInfo {

inline const QLatin1String name("Korvel");

/// The released version, set once in the build files.
inline const QLatin1String version(KORVEL_VERSION);

/// Relative on purpose: the settings belong to the working directory the program is started in.
inline const QLatin1String settingsFile("save.json");

inline const QLatin1String defaultLanguage("English");

inline const QLatin1String byline("by the Korvel developers");

/// The year in which the project began.
inline constexpr int startYear = 2026;

inline const QLatin1String termsOfUse("Terms of use: free software under the MIT License");

// All under a domain that is reserved and cannot be registered, so that no build of this source talks to a stranger.
// Whoever distributes Korvel sets their own; the update server's is the build option KORVEL_UPDATE_HOST.
inline const QLatin1String website("https://korvel.example");
inline const QLatin1String telegram("https://telegram.korvel.example");
inline const QLatin1String youtube("https://youtube.korvel.example");
inline const QLatin1String updateHost(KORVEL_UPDATE_HOST);

} // namespace ProductInfo
