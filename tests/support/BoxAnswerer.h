#pragma once

#include <QtTest>
#include <QtWidgets>

#include <functional>
#include <utility>

/// Stands in for the person at the screen: writes down every message box that opens and presses a button of it, from
/// within the box's own event loop. Make one before what opens the boxes.
class BoxAnswerer : public QObject
{
public:
    BoxAnswerer() { qApp->installEventFilter(this); }

    /// The button to press where a box has it; elsewhere the box is accepted.
    QMessageBox::StandardButton button = QMessageBox::Ok;

    /// How long each box stays open, in milliseconds.
    int delay = 0;

    /// What to do while a box is open, before its button is pressed.
    std::function<void()> onOpen = [] {};

    /// The boxes since the last call, oldest first, as "title: text" or, where it was set which button the Enter key
    /// presses, "title, by default No: text". What stands below the text follows after a plus; a warning is "title,
    /// warning: text".
    QStringList take() { return std::exchange(m_boxes, {}); }

    /// Waits for a box, then a little for one too many, and takes them. Empty when none opens within @p timeout
    /// milliseconds.
    QStringList wait(int timeout = 5000)
    {
        if (QTest::qWaitFor([this] { return !m_boxes.isEmpty(); }, timeout))
            QTest::qWait(delay + 30);
        return take();
    }

    bool eventFilter(QObject* object, QEvent* event) override
    {
        auto* box = event->type() == QEvent::Show ? qobject_cast<QMessageBox*>(object) : nullptr;
        if (!box)
            return false;
        const QPushButton* chosen = box->buttons().size() > 1 ? box->defaultButton() : nullptr;
        const QString byDefault = chosen ? ", by default " + chosen->text().remove('&') : QString();
        const QString below = box->informativeText().isEmpty() ? QString() : " + " + box->informativeText();
        const QString icon = box->icon() == QMessageBox::Warning ? ", warning" : QString();
        m_boxes.append(box->windowTitle() + byDefault + icon + QLatin1String(": ") + box->text() + below);
        QTimer::singleShot(delay, box, [this, box] {
            onOpen();
            QAbstractButton* widget = box->button(button);
            widget ? widget->click() : box->accept();
        });
        return false;
    }

private:
    QStringList m_boxes;
};
