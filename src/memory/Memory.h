#pragma once

#include "app/record/SettingsRecord.h"
#include "avrdude/Avrdude.h"

#include <QDateTime>
#include <QHash>
#include <QObject>

struct MemoryRequest;
class MemoryView;

/// The logic of one memory panel: keeps the two file paths of the settings record and writes, verifies and reads the
/// memory through the runner. Flash and Eeprom are this design with a table of constants each.
/// Owned by the Programming tab, as is the view, which may go first. All that lasts lives in the settings record.
class Memory : public QObject
{
    Q_OBJECT

public:
    /// What tells one memory from the other.
    struct Kind {
        const char* memory; ///< avrdude's name of the memory
        const char* title; ///< of the boxes, untranslated
        const char* written; ///< texts of the boxes, translated when shown
        const char* verified;
        const char* read;
        QString SettingsRecord::*writeFile;
        QString SettingsRecord::*readFile;
        QStringList SettingsRecord::*writeCommand;
        bool SettingsRecord::*enable;
        bool passesA90; ///< the suffix "a90" goes to avrdude as its own format code
    };

    /// Shows the settings record's two paths again.
    void refresh();

public slots:
    /// Stores the file to write and prepares the command that writes it; the write row's buttons follow. An empty
    /// @p path disables them and keeps the last command.
    void setFilePathWrite(const QString& path);

    /// Stores the file to read into; the read row's buttons follow.
    void setFilePathRead(const QString& path);

    /// avrdude's format code for a lower-case file @p suffix; "a" (detect) for an unknown one.
    [[nodiscard]] QString setFormatFile(const QString& suffix) const;

protected:
    Memory(MemoryView& view, Avrdude& avrdude, const Kind& kind, QObject* parent);

    [[nodiscard]] QString fileToWrite() const { return m_avrdude.settings().*m_kind.writeFile; }
    [[nodiscard]] QString fileToRead() const { return m_avrdude.settings().*m_kind.readFile; }

    void startWrite(Avrdude::Callback whenDone);
    void startVerify(const QString& file, Avrdude::Callback whenDone);
    void startRead(Avrdude::Callback whenDone);

    void showWritten();
    void showVerified();
    void showRead();

private:
    /// What does @p operation ("r", "w", "v") with the file at @p path.
    [[nodiscard]] MemoryRequest request(const char* operation, const QString& path) const;
    /// Runs @p arguments, which are those of @p request, unless something speaks against its file.
    void start(const MemoryRequest& request, const QStringList& arguments, Avrdude::Callback whenDone);
    /// Whether what is at @p path may go, which the user is asked if it seems to be theirs.
    [[nodiscard]] bool mayReplace(const QString& path);
    /// What is known of the file at @p path, in lines; its whole path alone when there is none.
    [[nodiscard]] QString describe(const QString& path) const;
    void showBox(const QString& text);

    MemoryView& m_view;
    Avrdude& m_avrdude;
    const Kind& m_kind;
    QHash<QString, QDateTime> m_read; ///< files that a reading wrote, with the time of that
    QString m_lastRead; ///< the one of the last reading
};
