#pragma once

#include <QString>

class QWidget;

/// The steps of the program's start that main() puts in order.
namespace Startup {

/// The interface language that the settings file names; the default language when there is no readable settings file
/// or no such key, the empty string when the key holds no string. The reason goes to the debug log.
[[nodiscard]] QString language();

/// From now on SIGTERM, SIGINT and SIGHUP close the main window as its button does, and end the program, whatever box
/// is open. Before the desktop session ends the settings are saved.
void closeOnRequest();

/// Centres @p window on the available area of the screen under the mouse pointer, else of the primary screen. On a
/// screen that is lower than the window the window becomes as high as the screen allows, with its title at the top.
void moveToPointerScreen(QWidget& window);

} // namespace Startup
