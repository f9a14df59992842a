#pragma once

#include <QWidget>

class QPushButton;

/// The row of buttons for all fuse bytes at once, below them. Owned by the Fuses tab.
class FusesButtonsView : public QWidget
{
    Q_OBJECT

public:
    explicit FusesButtonsView(QWidget* parent = nullptr);

    [[nodiscard]] QPushButton* writeButton() const { return m_write; }
    [[nodiscard]] QPushButton* verifyButton() const { return m_verify; }
    [[nodiscard]] QPushButton* readButton() const { return m_read; }
    [[nodiscard]] QPushButton* defaultButton() const { return m_default; }

private:
    QPushButton* m_write;
    QPushButton* m_verify;
    QPushButton* m_read;
    QPushButton* m_default;
};
