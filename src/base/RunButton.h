#pragma once

#include <QPushButton>

/// A button that starts avrdude. While a run makes it deaf it looks like one that is switched off, and stays one that
/// can be pressed. Owned by its view.
class RunButton : public QPushButton
{
    Q_OBJECT

public:
    using QPushButton::QPushButton;

    void setBusy(bool isBusy)
    {
        QPalette look;
        if (isBusy)
            look.setColor(QPalette::ButtonText, palette().color(QPalette::Disabled, QPalette::ButtonText));
        setPalette(look);
    }
};
