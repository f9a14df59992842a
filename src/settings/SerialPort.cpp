#include "settings/SerialPort.h"

#include <QSerialPortInfo>

QVector<SerialPort> systemSerialPorts()
{
    QVector<SerialPort> ports;
    const auto infos = QSerialPortInfo::availablePorts();
    for (const QSerialPortInfo& info : infos)
        ports.append({info.portName(), info.description(), info.vendorIdentifier(), info.systemLocation()});
    return ports;
}
