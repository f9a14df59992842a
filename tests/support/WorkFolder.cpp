#include "support/WorkFolder.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>

WorkFolder::WorkFolder()
    : m_previous(QDir::currentPath())
{
    QDir::setCurrent(m_folder.path());
}

WorkFolder::~WorkFolder()
{
    QDir::setCurrent(m_previous);
}

void WorkFolder::write(const QString& path, const QByteArray& content) const
{
    const QString absolute = QDir(m_folder.path()).absoluteFilePath(path);
    QDir().mkpath(QFileInfo(absolute).path());
    QFile file(absolute);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("cannot write %s", qPrintable(absolute));
}

QByteArray WorkFolder::read(const QString& path) const
{
    QFile file(QDir(m_folder.path()).absoluteFilePath(path));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QVector<QStringList> WorkFolder::runs() const
{
    QVector<QStringList> runs;
    const auto lines = read(QStringLiteral("runs")).split('\n');
    for (const QByteArray& line : lines) {
        if (!line.isEmpty())
            runs.append(QVariant(QJsonDocument::fromJson(line).array().toVariantList()).toStringList());
    }
    return runs;
}
