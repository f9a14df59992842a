#pragma once

#include "memory/PathField.h"

class QPushButton;

/// The panel of one memory: a row for the file to write and a row for the file to read into. FlashView and EepromView
/// are this panel under their names. Belongs to the Programming tab.
class MemoryView : public QWidget
{
    Q_OBJECT

public:
    /// Opens the dialog for the file to write, as its button does, which gets the focus.
    void browseForWriting() const;

    [[nodiscard]] PathField* writePath() const { return m_writeRow.path; }
    [[nodiscard]] QPushButton* writeButton() const { return m_writeRow.action; }
    [[nodiscard]] QPushButton* writeVerifyButton() const { return m_writeRow.verify; }
    [[nodiscard]] PathField* readPath() const { return m_readRow.path; }
    [[nodiscard]] QPushButton* readButton() const { return m_readRow.action; }
    [[nodiscard]] QPushButton* readVerifyButton() const { return m_readRow.verify; }

protected:
    /// @p memory is the name shown, such as "FLASH".
    MemoryView(const QString& memory, QWidget* parent);

private:
    struct Row {
        PathField* path = nullptr;
        QPushButton* browse = nullptr;
        QPushButton* action = nullptr;
        QPushButton* verify = nullptr;
    };

    Row makeRow(const QString& memory, const QString& action, const QString& dialogTitle);
    void browse(PathField& path, const QString& dialogTitle);

    Row m_writeRow;
    Row m_readRow;
};
