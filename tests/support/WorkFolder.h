#pragma once

#include <QtCore>

/// A fresh temporary folder that is the working directory for as long as the object lives.
class WorkFolder
{
public:
    WorkFolder() { QDir::setCurrent(m_folder.path()); }
    ~WorkFolder() { QDir::setCurrent(m_previous); }

    /// Writes a file (and the folders above it) in the working directory.
    void write(const QString& path, const QByteArray& content) const
    {
        QFile file(path);
        QDir().mkpath(QFileInfo(file).path());
        if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
            qFatal("cannot write %s", qPrintable(path));
    }

    /// The file's content; null when there is no such file.
    [[nodiscard]] static QByteArray read(const QString& path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    /// Copies files that ship to the same place in the working directory.
    void copy(const QStringList& files) const
    {
        for (const QString& file : files)
            write(file, read(QStringLiteral(DATA_FOLDER "/") + file));
    }

    /// The stand-in's runs so far, each with tabs between its arguments.
    [[nodiscard]] QStringList runs() const
    {
        return QString::fromUtf8(read(QStringLiteral("runs"))).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    }

private:
    QTemporaryDir m_folder;
    QString m_previous = QDir::currentPath();
};
