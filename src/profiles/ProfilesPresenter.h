#pragma once

#include "app/record/SettingsRecord.h"

#include <QObject>
#include <QStringList>
#include <QVector>

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

    /// Each writes one area of the present record, ticked or not, and tells so in the box that ends a writing. Dropped
    /// while avrdude runs.
    void writeFlash();
    void writeEeprom();
    void writeFuses();

    /// Shows the settings record again.
    void refresh();

    /// Lets only those areas be ticked that the settings record says have something to write.
    void updateAreas();

public slots:
    void setFlashChBox();
    void setEepromChBox();
    void setFusesChBox();

private:
    using Step = void (ProfilesPresenter::*)();

    void startWriting(const SettingsRecord& board);
    void writeOnly(bool SettingsRecord::*area);
    void nextStep();
    void startFlash();
    void startEeprom();
    void startFuses();
    void runStep(const QStringList& arguments, const QString& summary);
    void updateWriteButton();

    Avrdude& m_avrdude;
    SelectView& m_selectView;
    ConfigurationView& m_configurationView;
    ProgrammingView& m_programmingView;

    // Of the present or last writing.
    SettingsRecord m_board; ///< as it was when Write was pressed: what is chosen meanwhile is for the next board
    QVector<Step> m_steps;
    int m_nextStep = 0;
    QString m_log; ///< the logs of all steps so far
    QString m_summary; ///< the text of the closing box
};
