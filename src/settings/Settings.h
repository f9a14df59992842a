#pragma once

#include <QWidget>

class Avrdude;
class SettingsPresenter;

/// The settings panel as the main window places it: view, model and presenter together. Made by the main window, which
/// owns it, as it does the runner.
class Settings : public QWidget
{
    Q_OBJECT

public:
    Settings(Avrdude& avrdude, QWidget* parent);

    /// Shows the settings record again.
    void updateView();

signals:
    /// The user chose another programmer, port or speed, which stands in the settings record.
    void chosen();

private:
    SettingsPresenter* m_presenter;
};
