#include "profiles/Profiles.h"

#include "app/log/AvrdudeMessage.h"
#include "avrdude/Avrdude.h"
#include "fuses/FuseMeanings.h"
#include "profiles/BoardView.h"
#include "profiles/ConfigurationView.h"
#include "profiles/ProfilesPresenter.h"
#include "profiles/ProgrammingView.h"
#include "profiles/SelectView.h"
#include "profiles/Trust.h"

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
    auto* board = new BoardView(this);
    m_presenter = new ProfilesPresenter(avrdude, *selectView, *configurationView, *programmingView, *board, this);

    connect(m_presenter, &ProfilesPresenter::fusesWritten, this, &Profiles::fusesWritten);
    connect(board, &BoardView::grew, this, &Profiles::grew);
    connect(m_presenter, &ProfilesPresenter::writePressed, this, &Profiles::writePressed);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(selectView);
    layout->addWidget(configurationView);
    layout->addWidget(programmingView);
    layout->addWidget(board);
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

void Profiles::showBoard()
{
    m_presenter->showBoard();
}

void Profiles::loadProfile(const QString& name)
{
    // A profile that cannot be read leaves the record as it is, but for its name.
    const QString path = ProfilesPresenter::profileFile(name);
    SettingsRecord profile = m_avrdude.settings();
    const bool isLoaded = profile.loadFromFile(path, SettingsRecord::File::Profile);
    if (isLoaded) {
        Trust::settle(this, profile, m_avrdude.settings());
        profile.generation = m_avrdude.settings().generation + 1; // a box may have changed the record meanwhile
        m_avrdude.settings() = profile;
    } else {
        qDebug().noquote() << "Profile not loaded:" << path;
        m_avrdude.log().appendLine(tr("Failed to load settings from file: ") + path);
    }
    m_avrdude.settings().currentlyProfilesList = name;
    emit emitUpdateUI();
    m_presenter->setLoaded(isLoaded ? name : QString());
    // Nothing asks before a board is written, so that this is the place to say it.
    const QStringList warnings = isLoaded ? FuseMeanings::warnings(m_avrdude.settings()) : QStringList();
    for (const QString& warning : warnings)
        m_avrdude.log().appendLine(warning);
}
