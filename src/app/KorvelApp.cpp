#include "app/KorvelApp.h"

#include "about/AboutView.h"
#include "about/SocialLinksWidget.h"
#include "advice/Advice.h"
#include "advice/Surroundings.h"
#include "app/KeyboardFocus.h"
#include "app/Panes.h"
#include "app/StrayInput.h"
#include "app/log/AvrdudeMessage.h"
#include "app/log/RunBar.h"
#include "app/record/SettingsRecord.h"
#include "avrdude/Avrdude.h"
#include "base/Box.h"
#include "base/JsonFile.h"
#include "base/ProductInfo.h"
#include "base/RunButton.h"
#include "fuses/Fuses.h"
#include "i18n/LanguageFiles.h"
#include "mcu/Program.h"
#include "profiles/Profiles.h"
#include "settings/Settings.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCloseEvent>
#include <QDebug>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QKeyEvent>
#include <QMessageBox>
#include <QScreen>
#include <QShortcut>
#include <QTabBar>
#include <QTabWidget>

#include <functional>
#include <utility>

namespace {

void warnAboutSettings(const QString& text)
{
    QMessageBox::warning(QApplication::activeWindow(), ProductInfo::name, text + ProductInfo::settingsFile);
}

/// Gives the file at @p path the first name that is still free, and returns that; empty when it has to stay.
QString setAside(const QString& path)
{
    const QFileInfo info(path);
    for (int number = 1; info.isFile(); ++number) {
        QString name = QStringLiteral("%1.damaged-%2.%3").arg(info.baseName()).arg(number).arg(info.suffix());
        if (QFile::rename(path, name)) // never onto another file
            return name;
        if (!QFileInfo(name).isSymLink() && !QFile::exists(name))
            break;
    }
    return {};
}

} // namespace

KorvelApp::KorvelApp(QWidget* parent)
    : QMainWindow(parent)
    , m_log(new AvrdudeMessage(this))
    , m_avrdude(new Avrdude(this, m_log))
    , m_tabs(new QTabWidget(this))
    , m_fuses(new Fuses(*m_avrdude, this))
    , m_program(new Program(*m_avrdude, *m_fuses, this))
    , m_profiles(new Profiles(*m_avrdude, this))
    , m_settings(new Settings(*m_avrdude, this))
    , m_strays(new StrayInput(this))
{
    m_tabs->addTab(m_program, QStringLiteral("Programming"));
    m_tabs->addTab(m_fuses, QStringLiteral("Fuses"));
    m_tabs->addTab(m_profiles, QStringLiteral("Profiles"));
    m_tabs->addTab(new AboutView(this, LanguageFiles::baseFolder() + QLatin1String("/docs/guide.html")),
                   QStringLiteral("About"));

    m_panes = new Panes({m_tabs, m_settings}, m_fuses->scrollArea(), *m_log, this);
    setCentralWidget(m_panes);
    auto* links = new SocialLinksWidget(this);
    m_tabs->setCornerWidget(links, Qt::TopRightCorner);
    QWidget* last = m_log; // for the Tab key, but for these, which are needed least
    for (auto* link : links->findChildren<QAbstractButton*>()) {
        setTabOrder(last, link);
        last = link;
    }

    new KeyboardFocus(*this);
    addShortcuts();
    connect(m_profiles, &Profiles::writePressed, m_strays, &StrayInput::expectRepeats);
    // Queued: by then the layouts know.
    connect(m_profiles, &Profiles::grew, this, &KorvelApp::makeRoom, Qt::QueuedConnection);
    m_avrdude->setExplainer(
        [](const FailedRun& run) { return Advice::explain(run, Surroundings::now(Advice::portOf(run))); });
    connect(m_avrdude, &Avrdude::partChosen, m_program, &Program::chooseMcu);
    connect(m_tabs, &QTabWidget::currentChanged, this, &KorvelApp::onTabChanged);
    connect(m_profiles, &Profiles::emitUpdateUI, this, &KorvelApp::refreshPanels);
    connect(m_settings, &Settings::chosen, m_profiles, &Profiles::showBoard);
    connect(m_fuses, &Fuses::chipKnown, m_profiles, &Profiles::showBoard);
    connect(m_profiles, &Profiles::fusesWritten, m_fuses, &Fuses::showLegend);
    connect(m_avrdude, &Avrdude::runningChanged, this, &KorvelApp::showRunning);
    auto* runBar = new RunBar(*m_log);
    connect(m_avrdude, &Avrdude::runningChanged, runBar, &RunBar::setRunning);
    connect(m_avrdude, &Avrdude::turnedAway, runBar, &RunBar::flash);
    connect(m_avrdude, &Avrdude::progressed, runBar, &RunBar::setProgress);
    connect(runBar, &RunBar::shown, this, [this](bool isBusy) {
        const auto buttons = findChildren<RunButton*>();
        for (RunButton* button : buttons)
            button->setBusy(isBusy);
    });
    connect(runBar, &RunBar::stopClicked, m_avrdude, &Avrdude::stop);

    if (loadSettings()) {
        refreshPanels();
    } else { // microcontroller, programmer and port of the built-in settings, which the next run uses
        m_program->refresh();
        m_settings->updateView();
    }
    if (!QFileInfo(QDir::currentPath()).isWritable())
        m_log->appendLine(tr("Korvel cannot write to the folder %1: what you choose is not kept.").arg(fullPath({})));
}

void KorvelApp::saveSettings(Witness witness)
{
    if (m_avrdude->settings().saveToFile(ProductInfo::settingsFile))
        return;
    if (witness == Witness::User)
        warnAboutSettings(tr("Failed to save settings to file: "));
    else
        qDebug() << "Failed to save settings to file:" << ProductInfo::settingsFile;
}

void KorvelApp::closeUnwatched()
{
    m_witness = Witness::Nobody;
    close();
    m_witness = Witness::User;
}

bool KorvelApp::loadSettings()
{
    if (!QFile::exists(ProductInfo::settingsFile))
        return false;
    if (m_avrdude->settings().loadFromFile(ProductInfo::settingsFile))
        return true;
    const QString failed = tr("Failed to load settings from file: ");
    // Before the box, and before the closing writes these settings over those of the user.
    const JsonFile file = JsonFile::read(ProductInfo::settingsFile);
    const QString reason = QLatin1String(" (") + file.reason() + QLatin1Char(')');
    const QString kept = setAside(ProductInfo::settingsFile);
    m_log->appendLine(failed + ProductInfo::settingsFile + reason);
    if (!kept.isEmpty())
        m_log->appendLine(tr("The file is kept as %1.").arg(fullPath(kept)));
    warnAboutSettings(failed);
    return false;
}

bool KorvelApp::checksForUpdates() const
{
    return m_avrdude->settings().updateCheck;
}

QSize KorvelApp::sizeHint() const
{
    return m_panes->sizeHint();
}

void KorvelApp::refreshPanels()
{
    m_program->refresh();
    m_settings->updateView();
    m_fuses->rebuild(); // the list of fuse bytes is a new one
    m_profiles->refresh();
}

void KorvelApp::onTabChanged(int index)
{
    if (m_tabs->widget(index) == m_profiles)
        m_profiles->updateAreas();
}

void KorvelApp::makeRoom(int pixels)
{
    const int missing = m_panes->neededHeight() - m_panes->height();
    const int most = screen()->availableGeometry().bottom() - geometry().bottom();
    if (missing > 0 && missing <= pixels && missing <= most && !isMaximized() && !isFullScreen())
        resize(width(), height() + missing);
}

void KorvelApp::addShortcuts()
{
    const auto add = [this](const QKeySequence& keys, std::function<void()> act) {
        auto* shortcut = new QShortcut(keys, this);
        shortcut->setAutoRepeat(false);
        connect(shortcut, &QShortcut::activated, this, std::move(act));
    };
    for (int i = 0; i < m_tabs->count(); ++i) {
        add(QKeySequence(QStringLiteral("Alt+%1").arg(i + 1)), [this, i] {
            m_tabs->setCurrentIndex(i);
            m_tabs->tabBar()->clearFocus(); // which it may have had since the start, and shows when a key gives it
            m_tabs->tabBar()->setFocus(Qt::ShortcutFocusReason); // from where the Tab key leads into the tab
        });
    }
    add(QKeySequence::Open, [this] {
        m_tabs->setCurrentWidget(m_program);
        m_program->browseForFlash();
    });
}

void KorvelApp::showRunning(bool isRunning)
{
    // Whoever changes boards sees by the pointer that the one on the bench is still being worked on.
    if (isRunning)
        QApplication::setOverrideCursor(Qt::BusyCursor);
    else
        QApplication::restoreOverrideCursor();
}

void KorvelApp::keyPressEvent(QKeyEvent* event)
{
    const bool isEnter = (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        && (event->modifiers() & ~Qt::KeypadModifier) == 0;
    auto* button = isEnter ? qobject_cast<QAbstractButton*>(focusWidget()) : nullptr; // which left it to the window
    if (button && !button->isCheckable()) {
        m_strays->expectRepeats();
        button->click();
    } else {
        QMainWindow::keyPressEvent(event);
    }
}

void KorvelApp::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::FontChange) {
        // The toolkit hands neither on to what has a style sheet, which reads them when it is set.
        const auto widgets = findChildren<QWidget*>();
        for (QWidget* widget : widgets) {
            if (!widget->styleSheet().isEmpty())
                widget->setStyleSheet(widget->styleSheet());
        }
    }
    QMainWindow::changeEvent(event);
}

void KorvelApp::closeEvent(QCloseEvent* event)
{
    saveSettings(m_witness);
    // Only a hand's own closing waits for an answer: the session's end and signals do not. Asked from the event loop,
    // as a window that is closing does not hear of another request to close.
    const bool isAsked = event->spontaneous() && m_avrdude->isRunning();
    event->setAccepted(!isAsked);
    if (isAsked)
        QMetaObject::invokeMethod(this, &KorvelApp::askToClose, Qt::QueuedConnection);
}

void KorvelApp::askToClose()
{
    Box question(QMessageBox::Question, ProductInfo::name,
                 tr("avrdude is still working on the chip. If it is ended now, the chip is left as it is: perhaps "
                    "erased, perhaps half written."),
                 tr("Do you want to close Korvel all the same?"), QMessageBox::Yes | QMessageBox::No, this);
    question.setDefaultButton(QMessageBox::No);
    // Once avrdude is done, the question is no longer true. It is queued for the next step of a board to begin first.
    const auto withdraw = [this, &question] {
        if (!m_avrdude->isRunning())
            question.reject();
    };
    connect(m_avrdude, &Avrdude::runningChanged, &question, withdraw, Qt::QueuedConnection);
    if (question.exec() == QMessageBox::Yes)
        close();
}
