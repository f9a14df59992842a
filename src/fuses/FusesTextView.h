#pragma once

#include <QWidget>

class ElidedLabel;

/// The legend above the editors: what a checked and an unchecked box mean, and whether what they show is known of a
/// chip. Owned by the Fuses tab.
class FusesTextView : public QWidget
{
    Q_OBJECT

public:
    explicit FusesTextView(QWidget* parent = nullptr);

    /// Says that the editors do not show what was read from a chip, or no longer says so.
    void setUnread(bool isUnread);

private:
    ElidedLabel* m_unread;
};
