#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

/// What of the computer decides what to advise: a plain value, so that tests can have another one.
struct Surroundings {
    enum class System { Linux, Windows, Other };

    System system = System::Other;
    bool knowsUsb = false; ///< whether the system tells what is plugged in
    QStringList usbDevices; ///< vendor and product numbers of what is plugged in, "16c0:05dc"
    QStringList serialPorts; ///< names of those that a programmer may be at
    QString searchPath; ///< folders in which the system looks for programs
    QString portGroup; ///< group that owns the port which was used; empty: not known, or not that of a port

    /// The present ones, for a run that used @p port.
    [[nodiscard]] static Surroundings now(const QString& port);
};
