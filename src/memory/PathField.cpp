#include "memory/PathField.h"

#include "base/BoxText.h"
#include "base/JsonFile.h"

#include <QApplication>
#include <QDir>
#include <QDropEvent>
#include <QFileInfo>
#include <QKeyEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QUrl>

namespace {

QDir applicationFolder()
{
    return QDir(QCoreApplication::applicationDirPath());
}

/// The file that is dragged or was copied first; empty when that is none on this machine.
QString fileIn(const QMimeData& data)
{
    return data.urls().value(0).toLocalFile();
}

/// Takes the file and leaves it where it is: who drags it may offer to move it.
void acceptCopy(QDropEvent& event)
{
    event.setDropAction(Qt::CopyAction);
    event.accept();
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
        setToolTip(text().isEmpty() ? QString() : boxText(fullPath(text())));
    return QLineEdit::event(event);
}

void PathField::paste()
{
    pasteFrom(QClipboard::Clipboard);
}

void PathField::dragEnterEvent(QDragEnterEvent* event)
{
    if (fileIn(*event->mimeData()).isEmpty())
        QLineEdit::dragEnterEvent(event);
    else
        acceptCopy(*event);
}

void PathField::dragMoveEvent(QDragMoveEvent* event)
{
    if (fileIn(*event->mimeData()).isEmpty())
        QLineEdit::dragMoveEvent(event);
    else
        acceptCopy(*event);
}

void PathField::dropEvent(QDropEvent* event)
{
    const QString file = fileIn(*event->mimeData());
    if (file.isEmpty()) {
        QLineEdit::dropEvent(event);
        return;
    }
    setFile(file);
    acceptCopy(*event);
}

void PathField::keyPressEvent(QKeyEvent* event)
{
    if (event->matches(QKeySequence::Paste))
        paste();
    else
        QLineEdit::keyPressEvent(event);
}

void PathField::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::MiddleButton && QApplication::clipboard()->supportsSelection())
        pasteFrom(QClipboard::Selection);
    else
        QLineEdit::mouseReleaseEvent(event);
}

void PathField::pasteFrom(QClipboard::Mode mode)
{
    const QMimeData* copied = QApplication::clipboard()->mimeData(mode);
    if (!copied)
        return;
    const QString file = fileIn(*copied);
    if (!file.isEmpty()) {
        setFile(file);
        return;
    }
    // A path copied from a terminal or a list comes with a line break and blanks that are none of it, and what the
    // Explorer of Windows copies as a path stands in quotation marks.
    QString path = copied->text().remove(QLatin1Char('\n')).remove(QLatin1Char('\r')).trimmed();
    if (path.size() > 1 && path.startsWith(QLatin1Char('"')) && path.endsWith(QLatin1Char('"')))
        path = path.mid(1, path.size() - 2);
    insert(path);
}
