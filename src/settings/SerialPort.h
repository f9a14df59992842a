#pragma once

#include <QString>
#include <QVector>

/// What the settings panel needs to know of a serial port.
struct SerialPort {
    QString name; ///< "ttyUSB0", "COM3"
    QString description; ///< may be empty
    quint16 vendorId = 0; ///< USB vendor; 0: none
    QString systemLocation; ///< device path, "/dev/ttyUSB0"
};

/// The system's serial ports, in the order in which it reports them.
[[nodiscard]] QVector<SerialPort> systemSerialPorts();
