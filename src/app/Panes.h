#pragma once

#include <QVector>
#include <QWidget>

class AvrdudeMessage;
class QScrollArea;

/// What fills the window: panes, which scroll where the screen is too small for them, over the log, which stays in
/// sight. The log has the height that it was made with in a window of the size at which it opens; it grows with half of
/// what a larger one has, and gives way in a smaller one before anything scrolls.
class Panes : public QWidget
{
    Q_OBJECT

public:
    /// Takes over @p panes, from top to bottom, and @p log. @p inner, somewhere in the panes, scrolls by itself.
    Panes(const QVector<QWidget*>& panes, QScrollArea& inner, AvrdudeMessage& log, QWidget* parent);

    /// The least size at which nothing is scrolled and the log has most of its height.
    [[nodiscard]] QSize sizeHint() const override;

    /// The height in pixels at which nothing is scrolled and the log has its height.
    [[nodiscard]] int neededHeight() const;

    bool eventFilter(QObject* object, QEvent* event) override;

protected:
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    void share();

    QScrollArea* m_area;
    QWidget* m_panes;
    QScrollArea& m_inner;
    AvrdudeMessage& m_log;
    const int m_logHeight; ///< pixels, in a window as it opens
    int m_opened = 0; ///< the height of these in pixels when the window opened
};
