#pragma once

#include <QString>
#include <QVector>

/// What the settings panel needs to know of a serial port, so that tests can offer ports that are not there. A plain
/// value.
struct SerialPort {
    QString name; ///< "ttyUSB0", "COM3"
    QString description; ///< may be empty
    quint16 vendorId = 0; ///< USB vendor; 0: none
    QString systemLocation; ///< device path, "/dev/ttyUSB0"
};

/// The system's serial ports, in the order in which it reports them.
[[nodiscard]] QVector<SerialPort> systemSerialPorts();
