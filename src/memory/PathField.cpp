#include "memory/PathField.h"

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

/// The path in @p copied text. From a terminal or a list it comes with a line break and blanks that are none of it,
/// from the Explorer of Windows or a shell in quotation marks, and from a browser or a file manager as an address.
QString pathIn(QString copied)
{
    copied = copied.remove(QLatin1Char('\n')).remove(QLatin1Char('\r')).trimmed();
    for (const char mark : {'"', '\''}) {
        if (copied.size() > 1 && copied.startsWith(QLatin1Char(mark)) && copied.endsWith(QLatin1Char(mark)))
            copied = copied.mid(1, copied.size() - 2);
    }
    QUrl address(copied);
    if (address.host() == QLatin1String("localhost"))
        address.setHost({});
    // What looks like more than a file may be a name with such a character in it.
    const bool isFile = address.isLocalFile() && !address.hasQuery() && !address.hasFragment();
    return isFile ? address.toLocalFile() : copied;
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
    connect(this, &QLineEdit::textChanged, this, [this](const QString& text) {
        if (text != m_byHand)
            m_byHand.clear();
    });
    connect(this, &QLineEdit::textEdited, this, [this](const QString& text) { m_byHand = text; });
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
    m_byHand.clear();
}

bool PathField::event(QEvent* event)
{
    if (event->type() == QEvent::ToolTip)
        setToolTip(text().isEmpty() ? QString() : m_description(text()));
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
    m_byHand = text();
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
        m_byHand = text();
    } else {
        insert(pathIn(copied->text()));
    }
}
