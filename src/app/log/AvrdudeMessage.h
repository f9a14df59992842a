#pragma once

#include <QPlainTextEdit>

/// The log under the tabs: every avrdude run is echoed into it. Read-only to the user; belongs to the main window,
/// and may go while avrdude runs. A plain-text view, so that nothing that avrdude prints is ever taken for markup.
class AvrdudeMessage : public QPlainTextEdit
{
    Q_OBJECT

public:
    explicit AvrdudeMessage(QWidget* parent = nullptr);

    /// The height in pixels at which a few lines are seen, which tell how a run went.
    [[nodiscard]] int leastHeight() const;

    /// Inserts @p text at the text cursor, which is where the user last clicked, else the end. While something is
    /// selected it goes to the end, and the selection stays as it is. A line of thousands of characters is broken: laid
    /// out whole it would hold up the window.
    void insertAtCursor(const QString& text);

    /// Adds a line of the program's own to the end, and shows it; output of a run goes on below it.
    void appendLine(const QString& line);

    /// Shows @p text instead of what is there.
    void replace(const QString& text);
};
