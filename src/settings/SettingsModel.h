#pragma once

#include "settings/SerialPort.h"

#include <QObject>
#include <QStringList>

#include <functional>

/// What the catalogue says of a programmer. A plain value.
struct ProgrammerEntry {
    QString fault; ///< what keeps the entry from being read, for the user; empty when it was read
    QString id; ///< avrdude's "-c"
    QString arguments; ///< further avrdude arguments, separated by blanks
    QString portMode; ///< "usb": a fixed port; "com": a choice of serial ports; anything else: none
    QStringList interfaces; ///< that it programs parts by, "ISP", or "bootloader"; empty: not known
    QStringList usb; ///< vendor and product numbers, "16c0:05dc"; empty: none, or not known
    QString avrdude; ///< the version that first knew it, where that is newer than 7.1
    QString slowestChip; ///< "6.8 MHz": the clock that a chip needs for a programmer whose speed is fixed; else empty
};

/// The lists that the settings panel offers. The folders are those of the working directory; a missing one gives an
/// empty list. Owned by the panel.
class SettingsModel : public QObject
{
    Q_OBJECT

public:
    using PortSource = std::function<QVector<SerialPort>()>;

    /// @p ports is asked each time the port list is built; another source than the system's serves tests.
    explicit SettingsModel(QObject* parent = nullptr, PortSource ports = systemSerialPorts);

    /// The folder of the catalogue.
    [[nodiscard]] static QString programmerFolder();

    /// Names of the programmers of the catalogue, in the order of the file system.
    [[nodiscard]] QStringList programmerList() const;

    /// The speeds as shown; avrdude's bit-clock option is the part in parentheses.
    [[nodiscard]] QStringList speedList() const;

    /// Names of the interface languages, in the order of the file system.
    [[nodiscard]] QStringList languageList() const;

    [[nodiscard]] QVector<SerialPort> serialPorts() const { return m_ports(); }

    /// The catalogue entry of the programmer called @p name. A text that is missing or none is empty.
    [[nodiscard]] static ProgrammerEntry programmerEntry(const QString& name);

private:
    PortSource m_ports;
};
