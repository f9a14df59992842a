#include "app/KorvelApp.h"

#include "app/AvrdudeMessage.h"
#include "app/ProductInfo.h"
#include "avrdude/Avrdude.h"
#include "fuses/Fuses.h"
#include "mcu/Program.h"
#include "settings/Settings.h"

#include <QApplication>
#include <QCloseEvent>
#include <QFile>
#include <QMessageBox>
#include <QTabWidget>
#include <QVBoxLayout>

namespace {

const auto settingsFile = QLatin1String(ProductInfo::settingsFile);

void warnAboutSettings(const QString& text)
{
    QMessageBox::warning(QApplication::activeWindow(), QLatin1String(ProductInfo::name), text + settingsFile);
}

} // namespace

KorvelApp::KorvelApp(QWidget* parent)
    : QMainWindow(parent)
    , m_central(new QWidget(this))
    , m_log(new AvrdudeMessage(this))
    , m_avrdude(new Avrdude(this, m_log))
    , m_tabs(new QTabWidget(this))
    , m_fuses(new Fuses(*m_avrdude, this))
    , m_program(new Program(*m_avrdude, *m_fuses, this))
    , m_settings(new Settings(*m_avrdude, this))
{
    m_tabs->addTab(m_program, QStringLiteral("Programming"));
    m_tabs->addTab(m_fuses, QStringLiteral("Fuses"));

    auto* layout = new QVBoxLayout(m_central);
    layout->addWidget(m_tabs);
    layout->addWidget(m_settings);
    layout->addWidget(m_log);
    setCentralWidget(m_central);

    if (loadSettings())
        refreshPanels();
}

void KorvelApp::saveSettings()
{
    if (!m_avrdude->settings().saveToFile(settingsFile))
        warnAboutSettings(tr("Failed to save settings to file: "));
}

bool KorvelApp::loadSettings()
{
    if (!QFile::exists(settingsFile))
        return false;
    if (m_avrdude->settings().loadFromFile(settingsFile))
        return true;
    warnAboutSettings(tr("Failed to load settings from file: "));
    return false;
}

void KorvelApp::refreshPanels()
{
    m_program->refresh();
    m_settings->updateView();
    m_fuses->rebuild(); // the list of fuse bytes is a new one
}

void KorvelApp::closeEvent(QCloseEvent* event)
{
    saveSettings();
    event->accept();
}
