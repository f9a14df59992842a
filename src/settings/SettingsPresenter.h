#pragma once

#include <QObject>

class Avrdude;
class QComboBox;
class SettingsModel;
class SettingsView;

/// Fills the settings panel and writes every choice into the settings record at once. Lives as long as the panel, which
/// owns view and model too.
class SettingsPresenter : public QObject
{
    Q_OBJECT

public:
    SettingsPresenter(Avrdude& avrdude, SettingsModel& model, SettingsView& view, QObject* parent = nullptr);

    /// Shows the settings record again. A stored programmer or port that is in no list shows as blank, and stays
    /// stored; with a speed or language that is in none, the list shows what it did.
    void refreshFromSettings();

    /// Takes the catalogue entry called @p name into the record and offers its kind of port. A missing or broken entry
    /// is told in a box and changes nothing.
    void loadProgrammer(const QString& name);

    /// Rebuilds the port list: "usb" for a fixed port, "com" for a choice of serial ports, anything else for none.
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

private:
    void showProgrammer();
    void showPort();

    /// Makes the record's port current, whole or as a name in "/dev", and stores it as it is listed. Returns false,
    /// with nothing changed, when it is not in the list.
    bool selectStoredPort(QComboBox* comboBox);

    Avrdude& m_avrdude;
    SettingsModel& m_model;
    SettingsView& m_view;
};
