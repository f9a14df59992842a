#pragma once

#include <QObject>

class Avrdude;
class AvrdudeMessage;
class QComboBox;
struct ProgrammerEntry;
class SettingsModel;
struct SettingsRecord;
class SettingsView;

/// Fills the settings panel and writes every choice into the settings record at once. Lives as long as the panel, which
/// owns view and model too.
class SettingsPresenter : public QObject
{
    Q_OBJECT

public:
    SettingsPresenter(Avrdude& avrdude, SettingsModel& model, SettingsView& view, QObject* parent = nullptr);

    /// Shows the settings record again. One that was replaced takes identifier, fixed port and, where it has none of
    /// its own, arguments from its programmer's catalogue entry. A stored programmer or port that is in no list shows
    /// as blank, and stays stored; with a speed or language that is in none, the list shows what it did.
    void refreshFromSettings();

    /// The user picked the programmer called @p name: takes its catalogue entry into the record, offers its kind of
    /// port and chooses the first. A missing or broken entry is told in a box and changes nothing.
    void loadProgrammer(const QString& name);

    /// Rebuilds the port list for a mode of ProgrammerEntry and shows the stored port where it is among them. A fixed
    /// port goes into the record.
    void setPortMode(const QString& mode);

public slots:
    /// Adds every serial port of the system by name, and shows the record's port.
    void availableComPortsWin(QComboBox* comboBox);

    /// Adds the USB serial ports of the system, and selects the record's port where it is among them.
    void availableComPortsLin(QComboBox* comboBox);

    void setSpeedProgrammer(const QString& speed);

    /// Stores @p language and says, in that language, that it takes a restart.
    void setLanguage(const QString& language);

    /// Stores the port list's current device; the text shown, @p comPort, is not what avrdude needs.
    void setComPorts(const QString& comPort);

signals:
    /// The user chose another programmer, port or speed, which stands in the settings record.
    void chosen();

private:
    /// Takes what the catalogue has of the programmer called @p name into the record, and offers its kind of port. An
    /// entry that could not be read changes nothing.
    void choose(const QString& name, const ProgrammerEntry& entry);

    /// Tells in a box why @p entry could not be read, if it could not.
    void tell(const ProgrammerEntry& entry);

    void showProgrammer();
    void showPort();

    SettingsRecord& m_settings;
    AvrdudeMessage& m_log;
    SettingsModel& m_model;
    SettingsView& m_view;
    int m_shownGeneration = -1; ///< of the record, when it was last shown; -1: never
};
