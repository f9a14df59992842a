#pragma once

#include "profiles/BoardWriting.h"
#include "profiles/Production.h"

#include <QObject>

#include <functional>

class Avrdude;
class BoardView;
class ConfigurationView;
class ProgrammingView;
class SelectView;

/// The logic of the Profiles tab: keeps profiles as files, and writes the ticked areas to the chip one after another,
/// each step started by the completion of the one before. Owned by the tab, as are the views; the runner outlives it.
class ProfilesPresenter : public QObject
{
    Q_OBJECT

public:
    ProfilesPresenter(Avrdude& avrdude, SelectView& selectView, ConfigurationView& configurationView,
                      ProgrammingView& programmingView, BoardView& boardView, QObject* parent);

    /// Path of the file of the profile called @p name, which goes into it as typed; null as jsonPath() says. The folder
    /// is not made.
    [[nodiscard]] static QString profileFile(const QString& name);

    /// Lists the profiles of the folder "profiles"; leaves the list alone when there is no such folder.
    void loadProfileFiles();

    /// Writes the settings record as the profile named in the field, asking before one is overwritten. Nothing happens
    /// without a name; one that no file can have is refused in a box. The box reports success even when the file could
    /// not be written; the log tells the failure.
    void saveProfile();

    /// Deletes the selected profile's file, after a question. A failure to delete is not told.
    void removeProfile();

    /// Shows the settings record again.
    void refresh();

    /// Lets only those areas be ticked that the settings record says have something to write.
    void updateAreas();

    /// Says again what Write will send.
    void showBoard();

    /// The record holds the profile called @p name as it is in its file, once all panels have shown it; or, with an
    /// empty name, none. Boards are counted anew. A box says when none can be written with it.
    void setLoaded(const QString& name);

signals:
    /// Write was pressed, which began or changed the writing of a board.
    void writePressed();

    /// A board has got its fuse bytes.
    void fusesWritten();

public slots:
    void setFlashChBox();
    void setEepromChBox();
    void setFusesChBox();

private:
    void hold(const QString& profile);
    void startWriting();
    [[nodiscard]] bool beginBoard();
    void endBoard(bool isGood, const QString& message);
    [[nodiscard]] QString countsText() const;
    void nextStep();
    void noteSignature();
    void tellGood();
    void writeFlash();
    void writeEeprom();
    void writeFuses();
    void writeNumber();
    void run(const QStringList& arguments, const std::function<void()>& done);
    void runStep(BoardWriting::Area area, const QStringList& arguments, const QString& told);
    void updateWriteButton();

    Avrdude& m_avrdude;
    SelectView& m_selectView;
    ConfigurationView& m_configurationView;
    ProgrammingView& m_programmingView;
    BoardView& m_boardView;

    QStringList m_loaded; ///< what writing the loaded profile would send, when it was loaded; empty: none is
    QString m_profile; ///< the name of that one
    Production m_production; ///< of that one
    BoardWriting m_board; ///< the present or last one
    int m_lot = 0; ///< how often one was loaded
    int m_good = 0; ///< boards since the profile was loaded
    int m_failed = 0;
};
