#pragma once

#include <QFile>
#include <QStringList>

/// The file that gets a line for each board: comma-separated values with a line of headings. Tried at the press
/// of Write, so that no board is written whose line could not be.
class BoardLog
{
public:
    /// One value for each heading.
    struct Board {
        QString profile;
        QString part;
        QString signature; ///< "1E 95 0F"; empty if avrdude did not tell it
        QStringList areas;
        QString verdict;
        QString message; ///< of a failure
        qint64 milliseconds = 0;
        QStringList files; ///< name and CRC-32 of the file for the flash, and of that for the EEPROM
        QString serialNumber;
    };

    /// Whether @p name may be that of such a file: it lies in the work folder on every system and ends in ".csv".
    [[nodiscard]] static bool isFileName(const QString& name);

    /// @p milliseconds in seconds, as the line has them.
    [[nodiscard]] static QString seconds(qint64 milliseconds);

    /// Name and CRC-32 of the file at @p path, which is empty for a file that cannot be read.
    [[nodiscard]] static QStringList nameAndSum(const QString& path);

    /// Makes @p name the file, which is made if it is not there. Returns false when it cannot be written.
    [[nodiscard]] bool open(const QString& name);

    /// Appends @p board. Returns false, with the file as it was, when the disk does not take it.
    [[nodiscard]] bool append(const Board& board);

private:
    QFile m_file;
};
