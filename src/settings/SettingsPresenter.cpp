#include "settings/SettingsPresenter.h"

#include "app/log/AvrdudeMessage.h"
#include "avrdude/Avrdude.h"
#include "base/JsonFile.h"
#include "base/ProductInfo.h"
#include "i18n/LanguageFiles.h"
#include "settings/SettingsModel.h"
#include "settings/SettingsView.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QDebug>
#include <QJsonObject>
#include <QMessageBox>
#include <QSignalBlocker>

SettingsPresenter::SettingsPresenter(Avrdude& avrdude, SettingsModel& model, SettingsView& view, QObject* parent)
    : QObject(parent)
    , m_avrdude(avrdude)
    , m_model(model)
    , m_view(view)
{
    // Filled before they are connected: what happens to stand first is no choice of the user's.
    // No programmer is current before the record's is shown, whose entry is then always read.
    view.programmer()->addItems(model.programmerList());
    if (view.programmer()->count() == 0)
        avrdude.log().appendLine(
            tr("Nothing found in the folder %1.").arg(fullPath(SettingsModel::programmerFolder())));
    view.programmer()->setCurrentIndex(-1);
    view.speed()->addItems(model.speedList());
    view.language()->addItems(model.languageList());

    connect(view.programmer(), &QComboBox::currentTextChanged, this, [this](const QString& name) {
        if (m_view.programmer()->currentIndex() >= 0) // blank is no choice
            loadProgrammer(name);
    });
    connect(view.speed(), &QComboBox::currentTextChanged, this, &SettingsPresenter::setSpeedProgrammer);
    connect(view.port(), &QComboBox::currentTextChanged, this, &SettingsPresenter::setComPorts);
    connect(view.language(), &QComboBox::currentTextChanged, this, &SettingsPresenter::setLanguage);
}

void SettingsPresenter::refreshFromSettings()
{
    const QSignalBlocker programmer(m_view.programmer());
    const QSignalBlocker port(m_view.port());
    const QSignalBlocker speed(m_view.speed());
    const QSignalBlocker language(m_view.language());

    SettingsRecord& settings = m_avrdude.settings();
    showProgrammer();
    if (m_view.programmer()->currentIndex() < 0) {
        setPortMode({}); // the ports of another programmer are none of its
    } else if (const auto entry = readEntry(settings.programmer.name)) {
        // At the start the entry's arguments count, so that an edited entry does. Whatever is shown later came with a
        // profile, whose own count if it has any: one profile is one command line, whatever was shown before it.
        const QString own = m_hasStarted ? settings.arguments : QString();
        choose(settings.programmer.name, *entry);
        if (!own.isEmpty())
            settings.arguments = own;
        setPortMode(entry->portMode);
    }
    showPort();
    m_view.speed()->setCurrentText(settings.speed);
    m_view.language()->setCurrentText(settings.language);
    m_hasStarted = true;
}

void SettingsPresenter::showProgrammer()
{
    m_view.programmer()->setCurrentIndex(m_view.programmer()->findText(m_avrdude.settings().programmer.name));
}

void SettingsPresenter::showPort()
{
    QComboBox* port = m_view.port();
    if (!selectStoredPort(port))
        port->setCurrentIndex(port->findText(m_avrdude.settings().port)); // a fixed port is its own name
}

bool SettingsPresenter::selectStoredPort(QComboBox* comboBox)
{
    QString& stored = m_avrdude.settings().port;
    int index = comboBox->findData(stored);
    if (index < 0 && !stored.isEmpty())
        index = comboBox->findData(QString(QLatin1String("/dev/") + stored));
    if (index < 0)
        return false;
    comboBox->setCurrentIndex(index);
    stored = comboBox->itemData(index).toString();
    return true;
}

void SettingsPresenter::loadProgrammer(const QString& name)
{
    const auto entry = readEntry(name);
    if (!entry) {
        const QSignalBlocker blocker(m_view.programmer());
        showProgrammer(); // the one that the next run uses
        return;
    }
    choose(name, *entry);
    setPortMode(entry->portMode);
    if (m_view.port()->itemData(0).isValid()) { // of serial ports the first; that of another programmer is none of its
        const QSignalBlocker blocker(m_view.port());
        m_view.port()->setCurrentIndex(0);
        setComPorts(m_view.port()->currentText());
    }
}

std::optional<ProgrammerEntry> SettingsPresenter::readEntry(const QString& name)
{
    const JsonFile file = JsonFile::read(SettingsModel::programmerFile(name));
    if (const char* fault = file.fault()) {
        const QString text = QCoreApplication::translate("JsonFile", fault);
        QMessageBox::information(&m_view, text, text);
        return {};
    }
    const QJsonObject entry = file.document.object();
    return ProgrammerEntry {
        entry.value(QLatin1String("id")).toString(),
        entry.value(QLatin1String("arguments")).toString(),
        entry.value(QLatin1String("port")).toString(),
    };
}

void SettingsPresenter::choose(const QString& name, const ProgrammerEntry& entry)
{
    SettingsRecord& settings = m_avrdude.settings();
    settings.programmer.name = name;
    settings.programmer.id = entry.id;
    settings.arguments = entry.arguments;
}

void SettingsPresenter::setPortMode(const QString& mode)
{
    QComboBox* port = m_view.port();
    const QSignalBlocker blocker(port); // what happens to stand in a new list is no choice of the user's
    port->clear();
    if (mode == QLatin1String("usb")) {
        port->addItem(QStringLiteral("usb"));
        port->setEnabled(false);
        m_avrdude.settings().port = QStringLiteral("usb");
    } else if (mode == QLatin1String("com")) {
        port->setEnabled(true);
#ifdef Q_OS_WIN
        availableComPortsWin(port);
#else
        availableComPortsLin(port);
#endif
    }
}

void SettingsPresenter::availableComPortsWin(QComboBox* comboBox)
{
    const auto ports = m_model.serialPorts();
    for (const SerialPort& port : ports)
        comboBox->addItem(port.name, port.name);
    comboBox->setCurrentText(m_avrdude.settings().port);
}

void SettingsPresenter::availableComPortsLin(QComboBox* comboBox)
{
    const auto ports = m_model.serialPorts();
    for (const SerialPort& port : ports) {
        // Built-in UARTs and ports without a USB device behind them are no programmers.
        if (port.name.startsWith(QLatin1String("ttyS")) || port.vendorId == 0)
            continue;
        const QString text =
            port.description.isEmpty() ? port.name : QStringLiteral("%1 (%2)").arg(port.name, port.description);
        comboBox->addItem(text, port.systemLocation);
    }
    selectStoredPort(comboBox);
}

void SettingsPresenter::setSpeedProgrammer(const QString& speed)
{
    m_avrdude.settings().speed = speed;
}

void SettingsPresenter::setLanguage(const QString& language)
{
    m_avrdude.settings().language = language;

    // Looked up in the chosen language's file: the running interface stays in the old language.
    QString notice = QLatin1String(QT_TR_NOOP("Please restart the application to apply language changes."));
    const QString path = LanguageFiles::path(LanguageFiles::baseFolder(), language);
    const JsonFile file = JsonFile::read(path);
    if (!file.wasRead()) {
        qDebug().noquote() << "Language file not found:" << path;
        qDebug().noquote() << "Searched in directory:" << LanguageFiles::baseFolder();
    } else if (!file.isObject()) {
        qDebug().noquote() << "Language file parse error12:" << file.error;
    } else {
        const QJsonObject texts = file.document.object();
        if (texts.contains(notice))
            notice = texts.value(notice).toString();
    }
    QMessageBox::information(&m_view, ProductInfo::name, notice);
}

void SettingsPresenter::setComPorts(const QString&)
{
    m_avrdude.settings().port = m_view.port()->currentData().toString();
}
