#pragma once

#include <QWidget>

class ElidedLabel;
class QLabel;
class QPushButton;

/// What Write will send, and under it, from the first board on, how the last one ended: large enough to be seen from
/// the other side of the bench. Owned by the Profiles tab.
class BoardView : public QWidget
{
    Q_OBJECT

public:
    enum class Verdict { Pending, Good, Failed };

    explicit BoardView(QWidget* parent = nullptr);

    /// What Write will send.
    [[nodiscard]] ElidedLabel* line() const { return m_line; }

    /// Shows a board's verdict, with @p text beside the mark, and @p counts.
    void showBoard(Verdict verdict, const QString& text, const QString& counts);

    void showCounts(const QString& counts);

    /// Hides all but the line.
    void clear();

    [[nodiscard]] QPushButton* resetButton() const { return m_reset; }

signals:
    /// It needs @p pixels of height more than before.
    void grew(int pixels);

private:
    ElidedLabel* m_line;
    QWidget* m_last; ///< all of the last board
    QLabel* m_mark;
    ElidedLabel* m_text;
    QLabel* m_counts;
    QPushButton* m_reset;
};
