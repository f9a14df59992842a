#pragma once

#include <QWidget>

class Avrdude;
class ProfilesPresenter;

/// The Profiles tab: three views, the presenter that works them, and the loading of the profile that is picked. Made by
/// the main window, which owns it, as it does the runner.
class Profiles : public QWidget
{
    Q_OBJECT

public:
    Profiles(Avrdude& avrdude, QWidget* parent);

    /// Shows the settings record again.
    void refresh();

    /// Lets only those areas be ticked that the settings record says have something to write.
    void updateAreas();

    /// Says again what Write will send.
    void showBoard();

signals:
    /// A profile was loaded into the settings record: everything is to be shown again.
    void emitUpdateUI();

    /// A board has got its fuse bytes.
    void fusesWritten();

    /// The tab needs @p pixels of height more than before.
    void grew(int pixels);

    /// Write was pressed, which began or changed the writing of a board.
    void writePressed();

private:
    void loadProfile(const QString& name);

    Avrdude& m_avrdude;
    ProfilesPresenter* m_presenter;
};
