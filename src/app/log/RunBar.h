#pragma once

#include <QTimer>
#include <QWidget>

class QAbstractScrollArea;
class QProgressBar;
class QPushButton;

/// How far the present run is, and a button that stops it: lies over the upper edge of the log, so that nothing moves,
/// and is there only while a run takes longer than a glance. Owned by the log.
class RunBar : public QWidget
{
    Q_OBJECT

public:
    explicit RunBar(QAbstractScrollArea& log);

    /// A run begins or has ended. Several that follow each other at once are one to the eye.
    void setRunning(bool isRunning);

    /// Shows what avrdude does, in its own word ("Writing"), and how much of it is done, 0 to 100 percent; -1: there is
    /// no telling.
    void setProgress(const QString& activity, int percent);

    /// Gives a sign that a click has gone nowhere because of the run.
    void flash();

    bool eventFilter(QObject* object, QEvent* event) override;

signals:
    /// The bar has come, or gone.
    void shown(bool isShown);

    /// The user wants the run to end.
    void stopClicked();

private:
    void come();
    void go();
    void place();

    QAbstractScrollArea& m_log;
    QProgressBar* m_bar;
    QPushButton* m_stop;
    QTimer m_wait;
    bool m_isRunning = false;
};
