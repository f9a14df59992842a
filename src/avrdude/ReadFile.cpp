#include "avrdude/ReadFile.h"

#include <QFile>

#include <utility>

ReadFile::ReadFile(QObject* parent)
    : QObject(parent)
{
    // With copies of both: the callback may open a box, and start the next reading.
    connect(this, &ReadFile::emitFinishedReadFile, this, [this] {
        const Callback callback = m_callback;
        const QStringList results = m_results;
        callback(results);
    });
}

void ReadFile::readFiles(const QStringList& files, Callback callback)
{
    m_files = files;
    m_callback = std::move(callback);
    m_results.clear();
    for (const QString& path : std::as_const(m_files)) {
        QFile file(path);
        // Not as text: the toolkit would take 0x0D, a value like any other, for a part of a line end and drop it.
        if (file.open(QIODevice::ReadOnly))
            m_results.append(QString::fromLatin1(file.readAll().toHex(' ')).toUpper());
    }
    emit emitFinishedReadFile();
}
