#include "support/WorkFolder.h"

#include <QFile>
#include <QFileInfo>

void WorkFolder::write(const QString& path, const QByteArray& content) const
{
    QFile file(path);
    QDir().mkpath(QFileInfo(file).path());
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("cannot write %s", qPrintable(path));
}

QByteArray WorkFolder::read(const QString& path) const
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QVector<QStringList> WorkFolder::runs() const
{
    QVector<QStringList> runs;
    const auto lines = QString::fromUtf8(read(QStringLiteral("runs"))).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    for (const QString& line : lines)
        runs.append(line.split(QLatin1Char('\t')));
    return runs;
}
