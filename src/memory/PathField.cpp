#include "memory/PathField.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QDir>
#include <QDropEvent>
#include <QFileInfo>
#include <QKeyEvent>
#include <QMenu>
#include <QMimeData>
#include <QMouseEvent>
#include <QUrl>

#include <memory>

namespace {

QDir applicationFolder()
{
    return QDir(QCoreApplication::applicationDirPath());
}

/// The first file of what is dragged; empty when there is none on this machine.
QString draggedFile(const QDropEvent& event)
{
    return event.mimeData()->urls().value(0).toLocalFile();
}

} // namespace

PathField::PathField(QWidget* parent)
    : QLineEdit(parent)
{
}

QString PathField::startFolder() const
{
    const QFileInfo resolved(applicationFolder().absoluteFilePath(text()));
    return resolved.isFile() ? resolved.absolutePath() : resolved.filePath();
}

void PathField::setFile(const QString& chosen)
{
    const QString relative = applicationFolder().relativeFilePath(chosen);
    const bool outside = relative.startsWith(QLatin1String("..")) || QDir::isAbsolutePath(relative);
    setText(outside ? chosen : relative);
}

bool PathField::event(QEvent* event)
{
    if (event->type() == QEvent::ToolTip)
        setToolTip(text().isEmpty() ? QString() : QDir::current().absoluteFilePath(text()));
    return QLineEdit::event(event);
}

void PathField::contextMenuEvent(QContextMenuEvent* event)
{
    const std::unique_ptr<QMenu> menu(createStandardContextMenu());
    if (auto* paste = menu->findChild<QAction*>(QStringLiteral("edit-paste"))) {
        paste->disconnect(this);
        connect(paste, &QAction::triggered, this, [this] { insertPath(QApplication::clipboard()->text()); });
    }
    menu->exec(event->globalPos());
}

void PathField::dragEnterEvent(QDragEnterEvent* event)
{
    if (draggedFile(*event).isEmpty())
        QLineEdit::dragEnterEvent(event);
    else
        event->acceptProposedAction();
}

void PathField::dragMoveEvent(QDragMoveEvent* event)
{
    if (draggedFile(*event).isEmpty())
        QLineEdit::dragMoveEvent(event);
    else
        event->acceptProposedAction();
}

void PathField::dropEvent(QDropEvent* event)
{
    const QString file = draggedFile(*event);
    if (file.isEmpty()) {
        QLineEdit::dropEvent(event);
        return;
    }
    setFile(file);
    event->acceptProposedAction();
}

void PathField::keyPressEvent(QKeyEvent* event)
{
    if (event->matches(QKeySequence::Paste))
        insertPath(QApplication::clipboard()->text());
    else
        QLineEdit::keyPressEvent(event);
}

void PathField::mouseReleaseEvent(QMouseEvent* event)
{
    const QClipboard* clipboard = QApplication::clipboard();
    if (event->button() != Qt::MiddleButton || !clipboard->supportsSelection()) {
        QLineEdit::mouseReleaseEvent(event);
        return;
    }
    deselect();
    setCursorPosition(cursorPositionAt(event->pos()));
    insertPath(clipboard->text(QClipboard::Selection));
}

void PathField::insertPath(QString text)
{
    // A path copied from a terminal or a list comes with a line break and blanks that are none of it.
    insert(text.remove(QLatin1Char('\n')).remove(QLatin1Char('\r')).trimmed());
}
