#pragma once

#include <QComboBox>

#include <functional>

class QCompleter;
class QLineEdit;

/// A combo box whose list opens as a plain scrolling drop-down, wide enough for its longest entry however narrow the
/// box is, instead of the platform's popup menu that may cover the screen. What the box itself cuts off stands in its
/// tooltip.
///
/// Only a finished choice changes it: the wheel does nothing, the arrow keys open the list, and typing looks for what
/// is typed anywhere in the names, and in other words for them; blanks, hyphens and case do not count. Enter then picks
/// the exact name, else an exact other word, else the topmost that is listed; Escape leaves everything as it was.
class ListComboBox : public QComboBox
{
    Q_OBJECT

public:
    /// How narrow the box may become: with names that users choose, a long one must not widen the window.
    enum class Width { OfEntries, Any };

    explicit ListComboBox(Width width, QWidget* parent = nullptr);

    /// @p wordsFor tells what else an entry is called. It is asked for each once, when something is looked for.
    void setOtherWords(std::function<QStringList(const QString& name)> wordsFor) { m_wordsFor = std::move(wordsFor); }

    /// Has the tooltip say @p remark below the entry, and who listens to the list hear it; an empty one is none.
    void setRemark(const QString& remark) { m_remark = remark; }

    /// What the tooltip says, and what is read out after the name: the entry and the remark.
    [[nodiscard]] QStringList told() const;

    bool event(QEvent* event) override;
    bool eventFilter(QObject* object, QEvent* event) override;
    void showPopup() override;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    [[nodiscard]] int listWidth() const;
    void makeSearch();
    void startSearch(QKeyEvent* firstKey);
    void endSearch();
    void learnWords();
    void pickFound();
    void pick(int index);

    std::function<QStringList(const QString& name)> m_wordsFor;
    QString m_remark;
    QLineEdit* m_search = nullptr; ///< lies over the box while something is looked for; made by the first search
    QCompleter* m_completer = nullptr;
};
