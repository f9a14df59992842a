#pragma once

#include <QString>

#include <functional>

class QWidget;

/// The steps of the program's start that main() puts in order.
namespace Startup {

/// The interface language that the settings file names; the default language when there is no readable settings file
/// or no such key, the empty string when the key holds no string. The reason goes to the debug log.
[[nodiscard]] QString language();

/// From now on SIGTERM, SIGINT and SIGHUP close the main window as its button does, and end the program, whatever box
/// is open. Before the desktop session ends the settings are saved.
void closeOnRequest();

/// Keeps the toolkit from loading OpenGL with the first window on X11. Nothing here is drawn with it, and it takes
/// longer to load, and more memory, than all the rest of the program. To be called when the application object is there
/// and the first window is not; whatever the environment says of it is left alone.
void leaveOutOpenGl();

/// Centres @p window on the available area of the screen under the mouse pointer, else of the primary screen. Once it
/// is shown it is moved up where its frame sticks out below, and made lower on a screen that is lower than window and
/// frame.
void moveToPointerScreen(QWidget& window);

/// Calls @p then once, shortly after @p window has been painted for the first time: what nobody waits for is not to
/// hold that up.
void afterFirstPaint(QWidget& window, std::function<void()> then);

} // namespace Startup
