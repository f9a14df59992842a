#pragma once

#include <QWidget>

/// The legend above the editors: what a checked and an unchecked box mean. Owned by the Fuses tab.
class FusesTextView : public QWidget
{
    Q_OBJECT

public:
    explicit FusesTextView(QWidget* parent = nullptr);
};
