#pragma once

#include "app/PlainLabels.h"
#include "base/Spoken.h"

#include <QMainWindow>

class Avrdude;
class AvrdudeMessage;
class Fuses;
class Profiles;
class Panes;
class Program;
class QTabWidget;
class Settings;
class StrayInput;

/// The one top-level window: the tabs, the connection settings and the log under them, and the runner that all of
/// them share. Reads the settings file when it is built and writes it when it is closed. Lives in main() for as long as
/// the program runs, shown or not.
class KorvelApp : public QMainWindow
{
    Q_OBJECT

public:
    explicit KorvelApp(QWidget* parent = nullptr);

    enum class Witness { User, Nobody };

    /// Writes the settings file. A failure is told to the @p witness: the user in a box, nobody in the debug log, as a
    /// box would hold up a session that ends. The window closes all the same.
    void saveSettings(Witness witness = Witness::User);

    /// Closes the window for who is not there to read a box.
    void closeUnwatched();

    /// Reads the settings file into the record. Returns false when there is none (silently: a first start) or when it
    /// cannot be used: a box says so, and the log why, and under which other name the file is kept.
    bool loadSettings();

    /// Whether the settings want a newer version to be asked for.
    [[nodiscard]] bool checksForUpdates() const;

    /// The size at which nothing needs to be scrolled.
    [[nodiscard]] QSize sizeHint() const override;

public slots:
    /// Lets every panel show the settings record again.
    void refreshPanels();

    /// Brings the Profiles tab up to date with what there is to write, when it is the one at @p index.
    void onTabChanged(int index);

protected:
    /// Lets Enter press the button that has the focus, once for as long as it is held down.
    void keyPressEvent(QKeyEvent* event) override;

    /// Has everything follow a desktop that turns dark or light, or to another font.
    void changeEvent(QEvent* event) override;

    void closeEvent(QCloseEvent* event) override;

private:
    /// Grows by what is missing after something in the window has grown by @p pixels, unless the window was too small
    /// before, or the screen is: there the log gives way, and then a scroll bar serves.
    void makeRoom(int pixels);

    /// Ctrl+O opens the dialog for the flash file, Alt and a digit show a tab. None of it is on a widget: the texts
    /// are given, and "Write" stands there twice.
    void addShortcuts();

    void showRunning(bool isRunning);
    void askToClose();

    PlainLabels m_plainLabels; ///< before all widgets
    Spoken m_spoken; ///< the same
    AvrdudeMessage* m_log;
    Avrdude* m_avrdude;
    QTabWidget* m_tabs;
    Fuses* m_fuses;
    Program* m_program;
    Profiles* m_profiles;
    Settings* m_settings;
    Panes* m_panes = nullptr; ///< made when these are filled, as it looks at their sizes
    StrayInput* m_strays;
    Witness m_witness = Witness::User; ///< of the closing
};
