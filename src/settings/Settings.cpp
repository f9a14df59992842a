#include "settings/Settings.h"

#include "settings/SettingsModel.h"
#include "settings/SettingsPresenter.h"
#include "settings/SettingsView.h"

#include <QVBoxLayout>

Settings::Settings(Avrdude& avrdude, QWidget* parent)
    : QWidget(parent)
{
    auto* view = new SettingsView(this);
    auto* model = new SettingsModel(this);
    m_presenter = new SettingsPresenter(avrdude, *model, *view, this);
    connect(m_presenter, &SettingsPresenter::chosen, this, &Settings::chosen);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(view);
}

void Settings::updateView()
{
    m_presenter->refreshFromSettings();
}
