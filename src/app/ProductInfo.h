#pragma once

/// What this program calls itself and where it keeps its settings.
namespace ProductInfo {

inline constexpr char name[] = "Korvel";

/// The released version, set once in the build files.
inline constexpr char version[] = KORVEL_VERSION;

/// Relative on purpose: the settings belong to the working directory the program is started in.
inline constexpr char settingsFile[] = "save.json";

inline constexpr char defaultLanguage[] = "English";

} // namespace ProductInfo
