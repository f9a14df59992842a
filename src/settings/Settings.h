#pragma once

#include <QWidget>

class Avrdude;
class SettingsPresenter;

/// The settings panel as the main window places it: view, model and presenter together.
class Settings : public QWidget
{
    Q_OBJECT

public:
    Settings(Avrdude& avrdude, QWidget* parent);

    /// Shows the settings record again.
    void updateView();

private:
    SettingsPresenter* m_presenter;
};
