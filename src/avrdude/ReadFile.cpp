#include "avrdude/ReadFile.h"

#include <QFile>

#include <utility>

ReadFile::ReadFile(QObject* parent)
    : QObject(parent)
{
    // Nothing of ours is touched after the call: it may open a box, and start the next reading. The callback is good
    // for one reading; what it refers to may be gone after that.
    connect(this, &ReadFile::emitFinishedReadFile, this, [this] {
        const QStringList results = m_results;
        if (const Callback callback = std::exchange(m_callback, {}))
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
