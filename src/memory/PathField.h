#pragma once

#include <QClipboard>
#include <QLineEdit>

/// A field for the path of a file: typed, pasted, dropped, or chosen in a dialog. Shows the whole path as its tooltip.
/// Belongs to a memory panel.
class PathField : public QLineEdit
{
    Q_OBJECT

public:
    explicit PathField(QWidget* parent = nullptr);

    /// Where a dialog for the field opens: the folder of the file that it names, else what it names.
    [[nodiscard]] QString startFolder() const;

    /// Replaces the text by the path of the file @p chosen (absolute). One below the application's folder is kept
    /// relative to it, so that the folder can be moved with its files. avrdude looks for it from the working directory,
    /// which is that folder when Korvel is started there.
    void setFile(const QString& chosen);

    bool event(QEvent* event) override;

public slots:
    /// Inserts the path that was copied. Instead of the line edit's own: the context menu looks the slot up by its
    /// name.
    void paste();

protected:
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    void pasteFrom(QClipboard::Mode mode);
};
