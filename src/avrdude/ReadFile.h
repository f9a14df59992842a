#pragma once

#include <QObject>
#include <QStringList>

#include <functional>

/// Turns the small files that avrdude writes what it read into, into text: each file becomes its bytes as upper-case
/// hexadecimal pairs separated by blanks, such as "1E 95 0F". Owned by the panel that reads.
class ReadFile : public QObject
{
    Q_OBJECT

public:
    using Callback = std::function<void(const QStringList& texts)>;

    explicit ReadFile(QObject* parent = nullptr);

    /// Reads @p files and hands @p callback one text a file, in their order; the callback has run when this returns. A
    /// file that cannot be read is left out, and what follows moves up.
    void readFiles(const QStringList& files, Callback callback);

signals:
    void emitFinishedReadFile();

private:
    QStringList m_files;
    QStringList m_results;
    Callback m_callback;
};
