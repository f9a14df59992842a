#pragma once

#include <QClipboard>
#include <QLineEdit>

#include <functional>

/// A field for the path of a file: typed, pasted, dropped, or chosen in a dialog. Its tooltip says what is known of
/// the file. Belongs to a memory panel.
class PathField : public QLineEdit
{
    Q_OBJECT

public:
    /// Says what is known of the file at a path that is not empty, in lines for the tooltip.
    using Description = std::function<QString(const QString& path)>;

    explicit PathField(QWidget* parent = nullptr);

    void setDescription(Description description) { m_description = std::move(description); }

    /// Whether a hand typed, pasted or dropped the path that is shown: a dialog's is another matter, as is what the
    /// program puts there.
    [[nodiscard]] bool isByHand() const { return !m_byHand.isEmpty(); }

    /// Where a dialog for the field opens: the folder of the file that it names, else what it names.
    [[nodiscard]] QString startFolder() const;

    /// Replaces the text by the path of the file @p chosen (absolute). One below the application's folder is kept
    /// relative to it, so that the folder can be moved with its files. avrdude looks for it from the working directory,
    /// which is that folder when Korvel is started there. Counts as picked in a dialog.
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

    Description m_description = [](const QString& path) { return path; };
    QString m_byHand; ///< the text, when a hand put it there
};
