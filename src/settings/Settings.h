#pragma once

#include <QWidget>

#include <memory>

class Avrdude;
class SettingsPresenter;

/// The settings panel as the main window places it: view, model and presenter together.
class Settings : public QWidget
{
    Q_OBJECT

public:
    Settings(Avrdude& avrdude, QWidget* parent);
    ~Settings() override;

    /// Shows the settings record again.
    void updateView();

private:
    std::unique_ptr<SettingsPresenter> m_presenter;
};
