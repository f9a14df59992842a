#include "profiles/ProfilesPresenter.h"

#include "app/log/AvrdudeMessage.h"
#include "avrdude/Avrdude.h"
#include "avrdude/Message.h"
#include "base/Box.h"
#include "base/ElidedLabel.h"
#include "base/JsonFile.h"
#include "base/ShownText.h"
#include "fuses/FuseRequests.h"
#include "mcu/description/BytesModel.h"
#include "memory/FileCheck.h"
#include "memory/MemoryKind.h"
#include "profiles/BoardView.h"
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

/// The name is shown everywhere, the identifier is what avrdude gets.
QString shownPart(const SettingsRecord& settings)
{
    return BytesModel::description(settings).isEmpty() ? settings.mcuId : settings.mcuName;
}

/// Says in a box why Write does nothing.
void tellNoBoard(QWidget* parent, const QString& fault)
{
    Box::tell(parent, QStringLiteral("Profiles"), ProfilesPresenter::tr("No board is written with this profile."),
              fault, QMessageBox::Warning);
}

} // namespace

ProfilesPresenter::ProfilesPresenter(Avrdude& avrdude, SelectView& selectView, ConfigurationView& configurationView,
                                     ProgrammingView& programmingView, BoardView& boardView, QObject* parent)
    : QObject(parent)
    , m_avrdude(avrdude)
    , m_selectView(selectView)
    , m_configurationView(configurationView)
    , m_programmingView(programmingView)
    , m_boardView(boardView)
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
    connect(&avrdude, &Avrdude::failed, this, [this](const QString& message) { endBoard(false, message); });
    connect(boardView.resetButton(), &QPushButton::clicked, this, [this] {
        m_good = m_failed = 0;
        m_boardView.showCounts(countsText());
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
    const bool isSaved = m_avrdude.settings().saveToFile(path, SettingsRecord::File::Profile);
    hold(isSaved ? name : QString());
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
    setLoaded({});
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

void ProfilesPresenter::hold(const QString& profile)
{
    m_profile = profile;
    m_loaded = profile.isEmpty() ? QStringList() : sentBy(m_avrdude.settings());
    m_production = profile.isEmpty() ? Production() : Production::read(profileFile(profile), m_avrdude.settings());
    if (m_production.isQuiet)
        m_avrdude.log().appendLine(tr("With this profile no box tells of a board that is good."));
    showBoard();
}

void ProfilesPresenter::setLoaded(const QString& name)
{
    m_good = m_failed = 0;
    ++m_lot;
    m_boardView.clear();
    hold(name);
    if (!m_production.fault.isEmpty())
        tellNoBoard(&m_programmingView, m_production.fault);
}

void ProfilesPresenter::showBoard()
{
    const SettingsRecord& settings = m_avrdude.settings();
    QStringList line {shownPart(settings)};
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
    if (m_production.fault.isEmpty() && m_production.serial)
        line += tr("number %1").arg(m_production.serial->next);
    if (m_production.fault.isEmpty() && !m_production.boardLog.isEmpty())
        line += shownText(m_production.boardLog);
    if (m_loaded.isEmpty())
        line += tr("no profile loaded");
    else if (m_loaded != sentBy(settings))
        line += tr("profile changed since it was loaded");
    m_boardView.line()->showLine(line.join(QString::fromUtf8(" \u00b7 ")));
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
    emit writePressed();

    // In the middle of a writing the first of these steps is dropped, as something runs, and an area that had nothing
    // to write at first has nothing now.
    const SettingsRecord& settings = isNewBoard ? m_avrdude.settings() : m_board.settings;
    const QString profile = profileFile(m_profile);
    if (isNewBoard && !m_profile.isEmpty() && (!m_production.isPlain() || QFileInfo(profile).isFile()))
        m_production = Production::read(profile, settings);
    const Production& production = isNewBoard ? m_production : m_board.production;
    if (!production.fault.isEmpty()) {
        tellNoBoard(&m_programmingView, production.fault);
        return;
    }
    QVector<BoardWriting::Step> steps;
    QVector<MemoryRequest> requests;
    struct Area {
        const MemoryKind& kind;
        const QCheckBox* box;
        BoardWriting::Step step;
    };
    for (const Area& area : {Area {MemoryKind::flash, m_selectView.flash(), &ProfilesPresenter::writeFlash},
                             {MemoryKind::eeprom, m_selectView.eeprom(), &ProfilesPresenter::writeEeprom}}) {
        const auto command = area.kind.commandFor(settings);
        if (area.box->isChecked() && !command) {
            Box::tell(&m_programmingView, QLatin1String(area.kind.title),
                      tr("The command that the profile has for this memory does not write a file. It is not run:"),
                      shownText((settings.*area.kind.writeCommand).join(QLatin1Char(' ')), longestShown));
            return;
        }
        if (area.box->isChecked() && (isNewBoard || !command->isEmpty())) {
            if (isNewBoard || !steps.isEmpty())
                requests.append(MemoryRequest::from(*command));
            steps.append(area.step);
        }
        if (production.serial && production.serial->memory == QLatin1String(area.kind.memory))
            steps.append(&ProfilesPresenter::writeNumber);
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
        if (!m_avrdude.mayStart() || !beginBoard())
            return;
    }
    m_board.steps = steps;
    m_board.nextStep = 0;
    m_board.log.clear();
    nextStep();
}

bool ProfilesPresenter::beginBoard()
{
    BoardWriting board;
    board.settings = m_avrdude.settings();
    board.profile = m_profile;
    board.production = m_production;
    board.lot = m_lot;
    board.line.part = shownPart(board.settings);
    const QString fault = board.begin();
    if (!fault.isEmpty()) {
        tellNoBoard(&m_programmingView, fault);
        return false;
    }
    m_board = std::move(board);
    m_boardView.showBoard(BoardView::Verdict::Pending, tr("Board %1").arg(m_good + m_failed + 1), countsText());
    return true;
}

void ProfilesPresenter::endBoard(bool isGood, const QString& message)
{
    if (!m_board.isOpen)
        return;
    noteSignature();
    const QStringList remarks = m_board.end(isGood, message);
    for (const QString& remark : remarks)
        m_avrdude.log().appendLine(remark);
    if (m_board.production.serial && m_board.profile == m_profile)
        m_production = Production::read(profileFile(m_profile), m_avrdude.settings());

    if (m_board.lot != m_lot) {
        showBoard(); // another profile has been loaded meanwhile
        return;
    }
    ++(isGood ? m_good : m_failed);
    const int number = m_good + m_failed;
    if (isGood)
        m_boardView.showBoard(
            BoardView::Verdict::Good,
            tr("Board %1: written, %2 s").arg(number).arg(BoardLog::seconds(m_board.line.milliseconds)), countsText());
    else
        m_boardView.showBoard(BoardView::Verdict::Failed, tr("Board %1: failed: %2").arg(number).arg(message),
                              countsText());
    showBoard();
}

void ProfilesPresenter::noteSignature()
{
    const QString signature = Message::signatureIn(m_avrdude.output());
    if (!signature.isEmpty())
        m_board.line.signature = signature;
}

QString ProfilesPresenter::countsText() const
{
    return tr("%1 good, %2 failed").arg(m_good).arg(m_failed);
}

void ProfilesPresenter::tellGood()
{
    const Production& production = m_board.production;
    if (production.isQuiet && m_board.isRecorded)
        return;
    QStringList below;
    if (m_board.written.contains(BoardWriting::Area::Fuses))
        below += FuseRequests::remark(m_board.settings.fusesBytes);
    if (production.serial)
        below += tr("number %1").arg(production.serial->next);
    if (!m_board.isRecorded)
        below += m_board.missingLine();
    below.removeAll({});
    Box::tell(QApplication::activeWindow(), QStringLiteral("Profiles"),
              QStringList(m_board.written.values()).join(QString()), below.join(QLatin1Char('\n')),
              m_board.isRecorded ? QMessageBox::Information : QMessageBox::Warning);
    m_programmingView.writeButton()->setFocus(); // for the next one
}

void ProfilesPresenter::nextStep()
{
    m_board.log += m_avrdude.log().toPlainText();
    // Whatever was pressed in the middle, the number comes before the lock bits.
    const bool isLast = m_board.nextStep >= m_board.steps.size()
        || m_board.steps.at(m_board.nextStep) == &ProfilesPresenter::writeFuses;
    if (isLast && m_board.numberFile && !m_board.hasNumber)
        m_board.steps.insert(m_board.nextStep, &ProfilesPresenter::writeNumber);
    if (m_board.nextStep >= m_board.steps.size()) {
        m_avrdude.log().replace(m_board.log);
        endBoard(true, {});
        tellGood();
        return;
    }
    const BoardWriting::Step step = m_board.steps.at(m_board.nextStep);
    (this->*step)(); // dropped when Write was pressed again: the run in progress goes on with the step after it
    ++m_board.nextStep;
}

void ProfilesPresenter::run(const QStringList& arguments, const std::function<void()>& done)
{
    m_board.isRunning = true;
    m_avrdude.execute(m_board.settings, arguments, [this, done] {
        done(); // only now: a step that the runner dropped has written nothing
        noteSignature();
        nextStep();
    });
}

void ProfilesPresenter::runStep(BoardWriting::Area area, const QStringList& arguments, const QString& told)
{
    if (!m_avrdude.isBusy()) // or it is dropped
        m_board.sent.insert(area,
                            area == BoardWriting::Area::Fuses
                                ? QStringList()
                                : BoardLog::nameAndSum(MemoryRequest::from(arguments).file));
    run(arguments, [this, area, told] {
        m_board.written.insert(area, told);
        if (area == BoardWriting::Area::Fuses) {
            m_avrdude.fusesOnChip().note(m_board.settings.mcuId, FuseRequests::sent(m_board.settings.fusesBytes));
            emit fusesWritten();
        }
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

void ProfilesPresenter::writeNumber()
{
    const QString& memory = m_board.production.serial->memory;
    QStringList arguments =
        MemoryRequest {memory, QStringLiteral("w"), QFileInfo(*m_board.numberFile).fileName(), QStringLiteral("i")}
            .arguments();
    if (memory == QLatin1String("flash"))
        arguments.prepend(QStringLiteral("-D")); // or the program that has just been written would be erased
    run(arguments, [this] { m_board.hasNumber = true; });
}
