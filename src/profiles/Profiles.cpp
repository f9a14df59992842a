#include "profiles/Profiles.h"

#include "avrdude/Avrdude.h"
#include "profiles/ConfigurationView.h"
#include "profiles/ProfilesPresenter.h"
#include "profiles/ProgrammingView.h"
#include "profiles/SelectView.h"

#include <QCheckBox>
#include <QComboBox>
#include <QVBoxLayout>

Profiles::Profiles(Avrdude& avrdude, QWidget* parent)
    : QWidget(parent)
    , m_avrdude(avrdude)
    , m_selectView(new SelectView(this))
{
    auto* configurationView = new ConfigurationView(this);
    auto* programmingView = new ProgrammingView(this);
    m_presenter = new ProfilesPresenter(avrdude, *m_selectView, *configurationView, *programmingView, this);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_selectView);
    layout->addWidget(configurationView);
    layout->addWidget(programmingView);
    layout->addStretch();

    connect(programmingView->profiles(), &QComboBox::textActivated, this, &Profiles::loadProfile);
}

void Profiles::refresh()
{
    m_presenter->refresh();
}

void Profiles::updateAreas()
{
    const SettingsRecord& settings = m_avrdude.settings();
    const auto allow = [](QCheckBox* checkBox, bool enabled) {
        checkBox->setEnabled(enabled);
        if (!enabled)
            checkBox->setChecked(false);
    };
    allow(m_selectView->eeprom(), settings.eepromEnable);
    allow(m_selectView->flash(), settings.flashEnable);
    allow(m_selectView->fuses(), settings.fusesEnable);
}

void Profiles::loadProfile(const QString& name)
{
    // A profile that cannot be read leaves the record as it is; what it shows then is still true.
    (void)m_avrdude.settings().loadFromFile(ProfilesPresenter::profileFile(name));
    m_avrdude.settings().currentlyProfilesList = name;
    emit emitUpdateUI();
}
