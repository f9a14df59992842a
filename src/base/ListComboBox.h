#pragma once

#include <QComboBox>

/// A combo box whose list opens as a plain scrolling drop-down, wide enough for its longest entry however narrow the
/// box is, instead of the platform's popup menu that may cover the screen. What the box itself cuts off stands in its
/// tooltip.
class ListComboBox : public QComboBox
{
    Q_OBJECT

public:
    /// How narrow the box may become: with names that users choose, a long one must not widen the window.
    enum class Width { OfEntries, Any };

    explicit ListComboBox(Width width, QWidget* parent = nullptr);

    bool event(QEvent* event) override;
    void showPopup() override;
};
