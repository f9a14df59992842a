#pragma once

#include <QByteArray>
#include <QDir>
#include <QStringList>
#include <QTemporaryDir>
#include <QVector>

/// A fresh temporary folder that is the working directory for as long as the object lives.
class WorkFolder
{
public:
    WorkFolder() { QDir::setCurrent(m_folder.path()); }
    ~WorkFolder() { QDir::setCurrent(m_previous); }

    /// Writes a file (and the folders above it) in the working directory.
    void write(const QString& path, const QByteArray& content) const;

    /// The file's content; null when there is no such file.
    [[nodiscard]] QByteArray read(const QString& path) const;

    /// The argument lists of the stand-in's runs so far.
    [[nodiscard]] QVector<QStringList> runs() const;

private:
    QTemporaryDir m_folder;
    QString m_previous = QDir::currentPath();
};
