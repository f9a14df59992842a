#include "profiles/ProfilesPresenter.h"

#include "app/log/AvrdudeMessage.h"
#include "avrdude/Avrdude.h"
#include "base/Box.h"
#include "base/ElidedLabel.h"
#include "base/JsonFile.h"
#include "base/ShownText.h"
#include "fuses/FuseRequests.h"
#include "mcu/description/BytesModel.h"
#include "memory/FileCheck.h"
#include "memory/MemoryKind.h"
#include "profiles/ConfigurationView.h"
#include "profiles/ProgrammingView.h"
#include "profiles/SelectView.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDebug>
#include <QDir>
#include <QFileInfo>
#include <QJsonObject>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QSignalBlocker>

#include <utility>

namespace {

constexpr int longestShown = 300; // characters of what a profile brings, in a box

/// All that decides what writing a board does.
QStringList sentBy(const SettingsRecord& settings)
{
    QStringList all {settings.avrdude, settings.mcuName, settings.mcuId,    settings.programmer.id,
                     settings.port,    settings.speed,   settings.arguments};
    for (const bool isTicked : {settings.flashCheck, settings.eepromCheck, settings.fusesCheck})
        all += QString::number(isTicked ? 1 : 0);
    for (const MemoryKind* kind : {&MemoryKind::flash, &MemoryKind::eeprom})
        all += kind->commandFor(settings).value_or(settings.*kind->writeCommand);
    return all + FuseRequests::write(settings.fusesBytes);
}

/// What keeps a profile from being called @p name, which becomes the name of a file; empty when nothing does.
QString faultOf(const QString& name)
{
#ifdef Q_OS_WIN
    const QString forbidden = QStringLiteral("/\\:*?\"<>|");
#else
    const QString forbidden = QStringLiteral("/\\"); // the second for who takes the profile to Windows
#endif
    for (const QChar character : name) {
        if (forbidden.contains(character) || character.category() == QChar::Other_Control)
            return ProfilesPresenter::tr("The name of a profile cannot hold any of these characters: %1")
                .arg(forbidden);
    }
    if (isDeviceName(name))
        return ProfilesPresenter::tr("Windows keeps this name for a device. Choose another one.");
    constexpr int longest = 230; // bytes, of the 255 that most file systems allow: the rest is for endings
    if (name.toUtf8().size() > longest)
        return ProfilesPresenter::tr("The name is too long for a file. Choose a shorter one.");
    return {};
}

} // namespace

ProfilesPresenter::ProfilesPresenter(Avrdude& avrdude, SelectView& selectView, ConfigurationView& configurationView,
                                     ProgrammingView& programmingView, ElidedLabel& boardLine, QObject* parent)
    : QObject(parent)
    , m_avrdude(avrdude)
    , m_selectView(selectView)
    , m_configurationView(configurationView)
    , m_programmingView(programmingView)
    , m_boardLine(boardLine)
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
    return jsonPath(QStringLiteral("./profiles"), name);
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
    const QString title = QStringLiteral("Information");
    const QString fault = faultOf(name);
    if (!fault.isEmpty()) {
        Box::tell(&m_programmingView, title, fault);
        return;
    }
    QComboBox& profiles = *m_programmingView.profiles();
    const QString path = profileFile(name);
    int place = profiles.findText(name);
    if (place < 0 && QFileInfo(path).isFile()) // on Windows "blink" and "Blink" are one file
        place = profiles.findText(name, Qt::MatchFixedString);
    if (place >= 0) {
        const QString question = tr("Configuration named «%1» already exists.\nDo you want to overwrite it?").arg(name);
        if (QMessageBox::question(&m_programmingView, QStringLiteral("Overwrite Confirmation"), question,
                                  QMessageBox::Yes | QMessageBox::No, QMessageBox::No)
            != QMessageBox::Yes)
            return;
    }
    // Deliberate: the box below reports success even when the file could not be written. The log tells.
    // Through a link it might be any file: it may have come with somebody's profiles.
    const bool isSaved =
        !QFileInfo(path).isSymLink() && m_avrdude.settings().saveToFile(path, SettingsRecord::File::Profile);
    setLoaded(isSaved);
    if (!isSaved) {
        qDebug().noquote() << "Profile not saved:" << path;
        m_avrdude.log().appendLine(tr("Failed to save settings to file: ") + path);
    }
    if (place < 0) {
        place = profiles.count();
        profiles.addItem(name);
    }
    profiles.setCurrentIndex(place);
    QString remark;
    if (name.startsWith(QLatin1Char('.')))
        remark = tr("After a restart the list does not show it.");
    else if (name.contains(QLatin1Char('.')))
        remark = tr("After a restart the list calls it %1.").arg(QFileInfo(path).baseName());
    Box::tell(&m_programmingView, title,
              QLatin1String("Profile \"") + name + QLatin1String(".json\" saved successfully."), remark);
}

void ProfilesPresenter::removeProfile()
{
    QComboBox& profiles = *m_programmingView.profiles();
    const QString name = profiles.currentText();
    if (name.isEmpty())
        return;
    Box question(QMessageBox::Question, tr("Delete"), tr("Delete this profile?"), name,
                 QMessageBox::Yes | QMessageBox::No, &m_programmingView);
    if (question.exec() != QMessageBox::Yes)
        return;
    QFile::remove(profileFile(name));
    const int index = profiles.findText(name);
    if (index >= 0) {
        profiles.removeItem(index);
        profiles.setPlaceholderText(tr("Select profile..."));
    }
    setLoaded(false);
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
        for (const QString& name : settings.configurationList) {
            if (!profileFile(name).isNull())
                profiles.addItem(name);
        }
        profiles.setCurrentText(settings.currentlyProfilesList);
    }
    const auto show = [](QCheckBox* checkBox, bool checked, bool enabled) {
        checkBox->setChecked(checked);
        checkBox->setEnabled(enabled);
    };
    show(m_selectView.eeprom(), settings.eepromCheck, settings.eepromEnable);
    show(m_selectView.flash(), settings.flashCheck, settings.flashEnable);
    show(m_selectView.fuses(), settings.fusesCheck, settings.fusesEnable);
    showBoard();
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
    showBoard();
}

void ProfilesPresenter::setLoaded(bool isLoaded)
{
    m_loaded = isLoaded ? sentBy(m_avrdude.settings()) : QStringList();
    showBoard();
}

void ProfilesPresenter::showBoard()
{
    const SettingsRecord& settings = m_avrdude.settings();
    // The name is shown everywhere, the identifier is what avrdude gets.
    QStringList line {BytesModel::description(settings).isEmpty() ? settings.mcuId : settings.mcuName};
    const auto addFile = [&](bool isTicked, const MemoryKind& kind) {
        // Whole where no field shows it.
        const QString file = MemoryRequest::from(kind.commandFor(settings).value_or(QStringList())).file;
        const QString shown = (settings.*kind.writeFile).isEmpty() ? file : QFileInfo(file).fileName();
        if (isTicked)
            line += shown.isEmpty() ? QLatin1String(kind.title) + QLatin1String(": -") : shownText(shown);
    };
    addFile(settings.flashCheck, MemoryKind::flash);
    addFile(settings.eepromCheck, MemoryKind::eeprom);
    if (settings.fusesCheck) {
        const auto count = FuseRequests::sent(settings.fusesBytes).size();
        line += count == 1 ? tr("1 fuse byte") : tr("%1 fuse bytes").arg(count);
    }
    if (m_loaded.isEmpty())
        line += tr("no profile loaded");
    else if (m_loaded != sentBy(settings))
        line += tr("profile changed since it was loaded");
    m_boardLine.showLine(line.join(QString::fromUtf8(" \u00b7 ")));
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
    showBoard();
}

void ProfilesPresenter::startWriting()
{
    const bool isNewBoard = !m_avrdude.isBusy();
    if (!m_board.isRunning && m_avrdude.turnsAway())
        return; // it is something else that is running

    // In the middle of a writing the first of these steps is dropped, as something runs, and an area that had nothing
    // to write at first has nothing now.
    const SettingsRecord& settings = isNewBoard ? m_avrdude.settings() : m_board.settings;
    QVector<BoardWriting::Step> steps;
    QVector<MemoryRequest> requests;
    struct Area {
        const MemoryKind& kind;
        const QCheckBox* box;
        BoardWriting::Step step;
    };
    for (const Area& area : {Area {MemoryKind::flash, m_selectView.flash(), &ProfilesPresenter::writeFlash},
                             {MemoryKind::eeprom, m_selectView.eeprom(), &ProfilesPresenter::writeEeprom}}) {
        if (!area.box->isChecked())
            continue;
        const auto command = area.kind.commandFor(settings);
        if (!command) {
            Box::tell(&m_programmingView, QLatin1String(area.kind.title),
                      tr("The command that the profile has for this memory does not write a file. It is not run:"),
                      shownText((settings.*area.kind.writeCommand).join(QLatin1Char(' ')), longestShown));
            return;
        }
        if (command->isEmpty() && !isNewBoard)
            continue;
        if (isNewBoard || !steps.isEmpty())
            requests.append(MemoryRequest::from(*command));
        steps.append(area.step);
    }
    if (m_selectView.fuses()->isChecked() && (isNewBoard || !settings.fusesBytes.isEmpty()))
        steps.append(&ProfilesPresenter::writeFuses);
    if (steps.isEmpty())
        return;
    for (const MemoryRequest& request : std::as_const(requests)) {
        if (!FileCheck::passes(&m_programmingView, settings, request))
            return; // before any area is written; what is running goes on as it was
    }
    if (isNewBoard) {
        if (!m_avrdude.mayStart())
            return;
        m_board = {};
        m_board.settings = m_avrdude.settings();
    }
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
        const bool hasFuses = m_board.written.contains(BoardWriting::Area::Fuses);
        Box::tell(QApplication::activeWindow(), QStringLiteral("Profiles"),
                  QStringList(m_board.written.values()).join(QString()),
                  hasFuses ? FuseRequests::remark(m_board.settings.fusesBytes) : QString());
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
        if (area == BoardWriting::Area::Fuses) {
            m_avrdude.fusesOnChip().note(m_board.settings.mcuId, FuseRequests::sent(m_board.settings.fusesBytes));
            emit fusesWritten();
        }
        nextStep();
    });
}

void ProfilesPresenter::writeFlash()
{
    runStep(BoardWriting::Area::Flash, MemoryKind::flash.commandFor(m_board.settings).value_or(QStringList()),
            tr("Flash write successfully.\nFlash verify successfully.\n"));
}

void ProfilesPresenter::writeEeprom()
{
    runStep(BoardWriting::Area::Eeprom, MemoryKind::eeprom.commandFor(m_board.settings).value_or(QStringList()),
            tr("Eeprom write successfully.\nEeprom verify successfully.\n"));
}

void ProfilesPresenter::writeFuses()
{
    runStep(BoardWriting::Area::Fuses, FuseRequests::write(m_board.settings.fusesBytes),
            tr("Fuse bits write successfully.\nFuse bits verify successfully."));
}
