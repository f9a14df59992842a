#pragma once

#include "avrdude/Avrdude.h"
#include "memory/MemoryKind.h"

#include <QDateTime>
#include <QHash>
#include <QObject>

class MemoryView;

/// The logic of one memory panel: keeps the two file paths of the settings record and writes, verifies and reads the
/// memory through the runner. Flash and Eeprom are this design with a MemoryKind each.
/// Owned by the Programming tab, as is the view, which may go first. All that lasts lives in the settings record.
class Memory : public QObject
{
    Q_OBJECT

public:
    /// Shows the settings record's two paths again.
    void refresh();

public slots:
    /// Stores the file to write and prepares the command that writes it; the write row's buttons follow. An empty
    /// @p path disables them and keeps the last command.
    void setFilePathWrite(const QString& path);

    /// Stores the file to read into; the read row's buttons follow.
    void setFilePathRead(const QString& path);

    /// MemoryKind::formatOf() of this memory.
    [[nodiscard]] QString setFormatFile(const QString& suffix) const;

protected:
    Memory(MemoryView& view, Avrdude& avrdude, const MemoryKind& kind, QObject* parent);

    [[nodiscard]] QString fileToWrite() const { return m_avrdude.settings().*m_kind.writeFile; }
    [[nodiscard]] QString fileToRead() const { return m_avrdude.settings().*m_kind.readFile; }

    void startWrite(Avrdude::Callback whenDone);
    void startVerify(const QString& file, Avrdude::Callback whenDone);
    void startRead(Avrdude::Callback whenDone);

    void showWritten();
    void showVerified();
    void showRead();

private:
    /// Runs @p arguments, which are those of @p request, unless something speaks against its file.
    void start(const MemoryRequest& request, const QStringList& arguments, Avrdude::Callback whenDone);
    /// Whether what is at @p path may go, which the user is asked if it seems to be theirs.
    [[nodiscard]] bool mayReplace(const QString& path);
    /// What is known of the file at @p path, in lines; its whole path alone when there is none.
    [[nodiscard]] QString describe(const QString& path) const;
    void showBox(const QString& text);

    MemoryView& m_view;
    Avrdude& m_avrdude;
    const MemoryKind& m_kind;
    QHash<QString, QDateTime> m_read; ///< files that a reading wrote, with the time of that
    QString m_lastRead; ///< the one of the last reading
    bool m_isShown = false; ///< the settings record's paths have been
    QString m_foreignRead; ///< to read into, as a profile brought it
};
