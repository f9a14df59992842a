#pragma once

#include <QLineEdit>

/// The field of a byte in two hexadecimal digits. Digits come in as keys alone: whatever else could bring text would
/// stand in the field and not in the byte. Owned by the view of its byte.
class HexField : public QLineEdit
{
    Q_OBJECT

public:
    explicit HexField(QWidget* parent = nullptr);

    bool event(QEvent* event) override;

signals:
    /// The field is left, perhaps with a digit deleted.
    void left();

protected:
    void focusOutEvent(QFocusEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
};
