#pragma once

#include <QApplication>
#include <QMessageBox>
#include <QObject>
#include <QStringList>

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

    /// True when a box has opened since the last take().
    [[nodiscard]] bool hasAnswered() const { return !m_boxes.isEmpty(); }

    /// The boxes since the last call, oldest first, as "title: text".
    QStringList take() { return std::exchange(m_boxes, {}); }

    /// Waits for a box, then a little for one too many, and takes them. Empty when none opens within @p timeout
    /// milliseconds.
    QStringList wait(int timeout = 5000);

    bool eventFilter(QObject* object, QEvent* event) override;

private:
    QStringList m_boxes;
};
