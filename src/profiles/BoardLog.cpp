#include "profiles/BoardLog.h"

#include "base/JsonFile.h"

#include <QDateTime>
#include <QFileInfo>
#include <QRegularExpression>

#include <algorithm>

namespace {

constexpr char newLine[] = "\r\n";

/// A value as RFC 4180 wants it.
QString quoted(QString value)
{
    static const QRegularExpression special(QStringLiteral("[\",\r\n]"));
    if (!value.contains(special))
        return value;
    return QLatin1Char('"') + value.replace(QLatin1Char('"'), QLatin1String("\"\"")) + QLatin1Char('"');
}

QByteArray lineOf(QStringList values)
{
    std::transform(values.begin(), values.end(), values.begin(), quoted);
    return values.join(QLatin1Char(',')).toUtf8() + newLine;
}

} // namespace

bool BoardLog::isFileName(const QString& name)
{
    static const QRegularExpression bare(QRegularExpression::anchoredPattern(
        QStringLiteral("[^./\\\\:*?\"<>|\\x00-\\x1f\\x7f][^/\\\\:*?\"<>|\\x00-\\x1f\\x7f]*\\.csv")));
    constexpr int longest = 200; // bytes
    return name.contains(bare) && !isDeviceName(name) && name.toUtf8().size() <= longest;
}

QStringList BoardLog::nameAndSum(const QString& path)
{
    QFile file(path);
    constexpr qint64 largest = 32LL * 1024 * 1024; // bytes; firmware is smaller by far
    const bool isReadable = QFileInfo(file).isFile() && file.size() <= largest && file.open(QIODevice::ReadOnly);
    if (!isReadable)
        return {QFileInfo(path).fileName(), QString()};
    constexpr quint32 polynomial = 0xEDB88320; // of the CRC-32 of Ethernet and zip, lowest bit first
    quint32 sum = ~0U;
    const QByteArray content = file.readAll();
    for (const char byte : content) {
        sum ^= static_cast<uchar>(byte);
        for (int bit = 0; bit < 8; ++bit)
            sum = sum >> 1 ^ ((sum & 1U) != 0 ? polynomial : 0);
    }
    return {QFileInfo(path).fileName(), QStringLiteral("%1").arg(~sum, 8, 16, QLatin1Char('0')).toUpper()};
}

QString BoardLog::seconds(qint64 milliseconds)
{
    return QString::number(static_cast<double>(milliseconds) / 1000, 'f', 1);
}

bool BoardLog::open(const QString& name)
{
    const QFileInfo info(name);
    m_file.setFileName(name);
    const bool isUsable =
        !info.isSymLink() && (info.isFile() || !info.exists()) && m_file.open(QIODevice::ReadWrite | QIODevice::Append);
    m_file.close(); // a spreadsheet may replace the file meanwhile
    return isUsable;
}

bool BoardLog::append(const Board& board)
{
    if (!m_file.open(QIODevice::ReadWrite | QIODevice::Append))
        return false;
    QByteArray lines;
    const qint64 size = m_file.size();
    if (size == 0)
        lines = lineOf({QStringLiteral("time"), QStringLiteral("profile"), QStringLiteral("part"),
                        QStringLiteral("signature"), QStringLiteral("areas"), QStringLiteral("verdict"),
                        QStringLiteral("message"), QStringLiteral("seconds"), QStringLiteral("flash file"),
                        QStringLiteral("flash CRC-32"), QStringLiteral("EEPROM file"), QStringLiteral("EEPROM CRC-32"),
                        QStringLiteral("serial number")});
    else if (m_file.seek(size - 1) && m_file.read(1) != "\n")
        lines = newLine; // somebody's editor has left the last line open
    const QDateTime now = QDateTime::currentDateTime();
    lines += lineOf(QStringList {now.toOffsetFromUtc(now.offsetFromUtc()).toString(Qt::ISODate), board.profile,
                                 board.part, board.signature, board.areas.join(QLatin1Char(' ')), board.verdict,
                                 board.message, seconds(board.milliseconds)}
                    + board.files + QStringList {board.serialNumber});
    const bool isWritten = m_file.write(lines) == lines.size() && m_file.flush();
    if (!isWritten)
        m_file.resize(size);
    m_file.close();
    return isWritten;
}
