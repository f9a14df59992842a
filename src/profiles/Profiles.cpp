#include "profiles/Profiles.h"

#include "app/log/AvrdudeMessage.h"
#include "avrdude/Avrdude.h"
#include "profiles/ConfigurationView.h"
#include "profiles/ProfilesPresenter.h"
#include "profiles/ProgrammingView.h"
#include "profiles/SelectView.h"

#include <QComboBox>
#include <QDebug>
#include <QVBoxLayout>

Profiles::Profiles(Avrdude& avrdude, QWidget* parent)
    : QWidget(parent)
    , m_avrdude(avrdude)
{
    auto* selectView = new SelectView(this);
    auto* configurationView = new ConfigurationView(this);
    auto* programmingView = new ProgrammingView(this);
    m_presenter = new ProfilesPresenter(avrdude, *selectView, *configurationView, *programmingView, this);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(selectView);
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
    m_presenter->updateAreas();
}

void Profiles::loadProfile(const QString& name)
{
    // A profile that cannot be read leaves the record as it is, but for its name.
    const QString path = ProfilesPresenter::profileFile(name);
    if (!m_avrdude.settings().loadFromFile(path)) {
        qDebug().noquote() << "Profile not loaded:" << path;
        m_avrdude.log().appendLine(tr("Failed to load settings from file: ") + path);
    }
    m_avrdude.settings().currentlyProfilesList = name;
    emit emitUpdateUI();
}
