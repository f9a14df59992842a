#pragma once

#include "profiles/BoardWriting.h"

#include <QObject>

class Avrdude;
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
                      ProgrammingView& programmingView, QObject* parent);

    /// Path of the file of the profile called @p name, which goes into it as typed. The folder is not made.
    [[nodiscard]] static QString profileFile(const QString& name);

    /// Lists the profiles of the folder "profiles"; leaves the list alone when there is no such folder.
    void loadProfileFiles();

    /// Writes the settings record as the profile named in the field, asking before one is overwritten. Nothing happens
    /// without a name. The box reports success even when the file could not be written; the log tells the failure.
    void saveProfile();

    /// Deletes the selected profile's file, after a question. A failure to delete is not told.
    void removeProfile();

    /// Shows the settings record again.
    void refresh();

    /// Lets only those areas be ticked that the settings record says have something to write.
    void updateAreas();

public slots:
    void setFlashChBox();
    void setEepromChBox();
    void setFusesChBox();

private:
    void startWriting();
    void nextStep();
    void writeFlash();
    void writeEeprom();
    void writeFuses();
    void runStep(BoardWriting::Area area, const QStringList& arguments, const QString& told);
    void updateWriteButton();

    Avrdude& m_avrdude;
    SelectView& m_selectView;
    ConfigurationView& m_configurationView;
    ProgrammingView& m_programmingView;

    BoardWriting m_board; ///< the present or last one
};
