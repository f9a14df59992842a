#include "profiles/ProfilesPresenter.h"

#include "avrdude/Avrdude.h"
#include "base/BoxText.h"
#include "base/JsonFile.h"
#include "fuses/FuseRequests.h"
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
    connect(programmingView.writeButton(), &QPushButton::clicked, this, [this] { startWriting(m_avrdude.settings()); });
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
        m_avrdude.appendToLog(tr("Failed to save settings to file: ") + path);
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

void ProfilesPresenter::startWriting(const SettingsRecord& board)
{
    // Pressed in the middle of a writing, the button means that board and nothing that was chosen since.
    if (!m_avrdude.isBusy()) {
        m_board = board;
        const auto fits = [this](bool isTicked, const QStringList& command) {
            return !isTicked || RawFile::fits(m_board, command, &m_programmingView);
        };
        if (!fits(m_board.flashCheck, m_board.cmdFlashWrite) || !fits(m_board.eepromCheck, m_board.cmdEepromWrite))
            return; // before any area is written
    }

    m_steps.clear();
    m_nextStep = 0;
    m_summary.clear();
    m_log.clear();
    if (m_board.flashCheck)
        m_steps.append(&ProfilesPresenter::startFlash);
    if (m_board.eepromCheck)
        m_steps.append(&ProfilesPresenter::startEeprom);
    if (m_board.fusesCheck)
        m_steps.append(&ProfilesPresenter::startFuses);
    if (m_steps.isEmpty())
        return; // it was something else that is running, and no board has been written yet
    nextStep();
}

void ProfilesPresenter::writeOnly(bool SettingsRecord::*area)
{
    if (m_avrdude.isBusy())
        return; // a writing that is under way keeps its steps
    SettingsRecord board = m_avrdude.settings();
    board.flashCheck = board.eepromCheck = board.fusesCheck = false;
    board.*area = true;
    startWriting(board);
}

void ProfilesPresenter::writeFlash()
{
    writeOnly(&SettingsRecord::flashCheck);
}

void ProfilesPresenter::writeEeprom()
{
    writeOnly(&SettingsRecord::eepromCheck);
}

void ProfilesPresenter::writeFuses()
{
    writeOnly(&SettingsRecord::fusesCheck);
}

void ProfilesPresenter::nextStep()
{
    m_log += m_avrdude.logText();
    if (m_nextStep >= m_steps.size()) {
        m_avrdude.replaceLog(m_log);
        QMessageBox::information(QApplication::activeWindow(), QStringLiteral("Profiles"), m_summary);
        return;
    }
    const Step step = m_steps.at(m_nextStep);
    (this->*step)();
    ++m_nextStep;
}

void ProfilesPresenter::runStep(const QStringList& arguments, const QString& summary)
{
    m_avrdude.execute(m_board, arguments, [this, summary] {
        m_summary += summary; // only now: a step that the runner dropped has written nothing
        nextStep();
    });
}

void ProfilesPresenter::startFlash()
{
    runStep(m_board.cmdFlashWrite, tr("Flash write successfully.\nFlash verify successfully.\n"));
}

void ProfilesPresenter::startEeprom()
{
    runStep(m_board.cmdEepromWrite, tr("Eeprom write successfully.\nEeprom verify successfully.\n"));
}

void ProfilesPresenter::startFuses()
{
    runStep(FuseRequests::write(m_board.fusesBytes),
            tr("Fuse bits write successfully.\nFuse bits verify successfully."));
}
