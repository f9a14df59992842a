#include "profiles/ProfilesPresenter.h"

#include "app/log/AvrdudeMessage.h"
#include "avrdude/Avrdude.h"
#include "base/BoxText.h"
#include "base/JsonFile.h"
#include "fuses/FuseRequests.h"
#include "memory/MemoryRequest.h"
#include "memory/RawFile.h"
#include "profiles/ConfigurationView.h"
#include "profiles/ProgrammingView.h"
#include "profiles/SelectView.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDebug>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QSignalBlocker>

#include <utility>

ProfilesPresenter::ProfilesPresenter(Avrdude& avrdude, SelectView& selectView, ConfigurationView& configurationView,
                                     ProgrammingView& programmingView, QObject* parent)
    : QObject(parent)
    , m_avrdude(avrdude)
    , m_selectView(selectView)
    , m_configurationView(configurationView)
    , m_programmingView(programmingView)
{
    connect(selectView.flash(), &QCheckBox::stateChanged, this, &ProfilesPresenter::setFlashChBox);
    connect(selectView.eeprom(), &QCheckBox::stateChanged, this, &ProfilesPresenter::setEepromChBox);
    connect(selectView.fuses(), &QCheckBox::stateChanged, this, &ProfilesPresenter::setFusesChBox);
    connect(configurationView.name(), &QLineEdit::textChanged, this,
            [this](const QString& name) { m_avrdude.settings().profile.name = name; });
    connect(configurationView.description(), &QLineEdit::textChanged, this,
            [this](const QString& text) { m_avrdude.settings().description = text; });
    connect(configurationView.addButton(), &QPushButton::clicked, this, &ProfilesPresenter::saveProfile);
    connect(configurationView.removeButton(), &QPushButton::clicked, this, &ProfilesPresenter::removeProfile);
    connect(programmingView.writeButton(), &QPushButton::clicked, this, &ProfilesPresenter::startWriting);
    connect(&avrdude, &Avrdude::runningChanged, this, [this](bool isRunning) {
        if (!isRunning)
            m_board.isRunning = false; // until the next step begins
    });
    loadProfileFiles();
}

QString ProfilesPresenter::profileFile(const QString& name)
{
    return QLatin1String("./profiles/") + name + QLatin1String(".json");
}

void ProfilesPresenter::loadProfileFiles()
{
    const QString folder = QStringLiteral("profiles");
    if (!QDir(folder).exists())
        return;
    m_programmingView.profiles()->clear();
    m_programmingView.profiles()->addItems(jsonBaseNames(folder));
}

void ProfilesPresenter::saveProfile()
{
    const QString name = m_configurationView.name()->text();
    if (name.isEmpty())
        return;
    QComboBox& profiles = *m_programmingView.profiles();
    const bool isListed = profiles.findText(name) >= 0;
    if (isListed) {
        const QString question = tr("Configuration named «%1» already exists.\nDo you want to overwrite it?").arg(name);
        if (QMessageBox::question(&m_programmingView, QStringLiteral("Overwrite Confirmation"), boxText(question),
                                  QMessageBox::Yes | QMessageBox::No, QMessageBox::No)
            != QMessageBox::Yes)
            return;
    }
    // Deliberate: the box below reports success even when the file could not be written. The log tells.
    const QString path = profileFile(name);
    if (!m_avrdude.settings().saveToFile(path)) {
        qDebug().noquote() << "Profile not saved:" << path;
        m_avrdude.log().appendLine(tr("Failed to save settings to file: ") + path);
    }
    if (!isListed)
        profiles.addItem(name);
    profiles.setCurrentText(name);
    QMessageBox::information(
        &m_programmingView, QStringLiteral("Information"),
        boxText(QLatin1String("Profile \"") + name + QLatin1String(".json\" saved successfully.")));
}

void ProfilesPresenter::removeProfile()
{
    QComboBox& profiles = *m_programmingView.profiles();
    const QString name = profiles.currentText();
    if (name.isEmpty())
        return;
    if (QMessageBox::question(&m_programmingView, tr("Delete"), tr("Delete this profile?")) != QMessageBox::Yes)
        return;
    QFile::remove(profileFile(name));
    const int index = profiles.findText(name);
    if (index >= 0) {
        profiles.removeItem(index);
        profiles.setPlaceholderText(tr("Select profile..."));
    }
    m_configurationView.name()->clear();
    m_configurationView.description()->clear();
}

void ProfilesPresenter::refresh()
{
    const SettingsRecord& settings = m_avrdude.settings();
    m_configurationView.name()->setText(settings.profile.name);
    m_configurationView.description()->setText(settings.description);
    {
        QComboBox& profiles = *m_programmingView.profiles();
        const QSignalBlocker blocker(profiles);
        profiles.addItems(settings.configurationList);
        profiles.setCurrentText(settings.currentlyProfilesList);
    }
    const auto show = [](QCheckBox* checkBox, bool checked, bool enabled) {
        checkBox->setChecked(checked);
        checkBox->setEnabled(enabled);
    };
    show(m_selectView.eeprom(), settings.eepromCheck, settings.eepromEnable);
    show(m_selectView.flash(), settings.flashCheck, settings.flashEnable);
    show(m_selectView.fuses(), settings.fusesCheck, settings.fusesEnable);
}

void ProfilesPresenter::updateAreas()
{
    const SettingsRecord& settings = m_avrdude.settings();
    const auto allow = [](QCheckBox* checkBox, bool enabled) {
        checkBox->setEnabled(enabled);
        if (!enabled)
            checkBox->setChecked(false);
    };
    allow(m_selectView.eeprom(), settings.eepromEnable);
    allow(m_selectView.flash(), settings.flashEnable);
    allow(m_selectView.fuses(), settings.fusesEnable);
}

void ProfilesPresenter::setFlashChBox()
{
    m_avrdude.settings().flashCheck = m_selectView.flash()->isChecked();
    updateWriteButton();
}

void ProfilesPresenter::setEepromChBox()
{
    m_avrdude.settings().eepromCheck = m_selectView.eeprom()->isChecked();
    updateWriteButton();
}

void ProfilesPresenter::setFusesChBox()
{
    m_avrdude.settings().fusesCheck = m_selectView.fuses()->isChecked();
    updateWriteButton();
}

void ProfilesPresenter::updateWriteButton()
{
    m_programmingView.writeButton()->setEnabled(m_selectView.flash()->isChecked() || m_selectView.eeprom()->isChecked()
                                                || m_selectView.fuses()->isChecked());
}

void ProfilesPresenter::startWriting()
{
    const bool isNewBoard = !m_avrdude.isBusy();
    if (isNewBoard) {
        m_board = {};
        m_board.settings = m_avrdude.settings();
    } else if (!m_board.isRunning) {
        return; // it is something else that is running
    }

    const SettingsRecord& settings = m_board.settings;
    // In the middle of a writing an area that had nothing to write at first has nothing now.
    const auto counts = [isNewBoard](const QCheckBox* area, bool isEmpty) {
        return area->isChecked() && (isNewBoard || !isEmpty);
    };
    const bool flash = counts(m_selectView.flash(), settings.cmdFlashWrite.isEmpty());
    const bool eeprom = counts(m_selectView.eeprom(), settings.cmdEepromWrite.isEmpty());
    const bool fuses = counts(m_selectView.fuses(), settings.fusesBytes.isEmpty());
    for (const auto& [isTicked, command] :
         {std::pair(flash, settings.cmdFlashWrite), {eeprom, settings.cmdEepromWrite}}) {
        const MemoryRequest request = MemoryRequest::from(command);
        const QString fault = isTicked ? RawFile::fault(settings, request) : QString();
        if (!fault.isEmpty()) { // before any area is written; what is running goes on as it was
            QMessageBox::information(&m_programmingView, request.memory.toUpper(), fault);
            return;
        }
    }

    QVector<BoardWriting::Step> steps;
    if (flash)
        steps.append(&ProfilesPresenter::writeFlash);
    if (eeprom)
        steps.append(&ProfilesPresenter::writeEeprom);
    if (fuses)
        steps.append(&ProfilesPresenter::writeFuses);
    if (steps.isEmpty())
        return;
    m_board.steps = steps;
    m_board.nextStep = 0;
    m_board.log.clear();
    nextStep();
}

void ProfilesPresenter::nextStep()
{
    m_board.log += m_avrdude.log().toPlainText();
    if (m_board.nextStep >= m_board.steps.size()) {
        m_avrdude.log().replace(m_board.log);
        QMessageBox::information(QApplication::activeWindow(), QStringLiteral("Profiles"),
                                 QStringList(m_board.written.values()).join(QString()));
        return;
    }
    const BoardWriting::Step step = m_board.steps.at(m_board.nextStep);
    (this->*step)(); // dropped when Write was pressed again: the run in progress goes on with the step after it
    ++m_board.nextStep;
}

void ProfilesPresenter::runStep(BoardWriting::Area area, const QStringList& arguments, const QString& told)
{
    m_board.isRunning = true;
    m_avrdude.execute(m_board.settings, arguments, [this, area, told] {
        m_board.written.insert(area, told); // only now: a step that the runner dropped has written nothing
        nextStep();
    });
}

void ProfilesPresenter::writeFlash()
{
    runStep(BoardWriting::Area::Flash, m_board.settings.cmdFlashWrite,
            tr("Flash write successfully.\nFlash verify successfully.\n"));
}

void ProfilesPresenter::writeEeprom()
{
    runStep(BoardWriting::Area::Eeprom, m_board.settings.cmdEepromWrite,
            tr("Eeprom write successfully.\nEeprom verify successfully.\n"));
}

void ProfilesPresenter::writeFuses()
{
    runStep(BoardWriting::Area::Fuses, FuseRequests::write(m_board.settings.fusesBytes),
            tr("Fuse bits write successfully.\nFuse bits verify successfully."));
}
