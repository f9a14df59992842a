#include "settings/SettingsPresenter.h"

#include "avrdude/Avrdude.h"
#include "base/JsonFile.h"
#include "base/ProductInfo.h"
#include "i18n/LanguageFiles.h"
#include "settings/SettingsModel.h"
#include "settings/SettingsView.h"

#include <QComboBox>
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
        avrdude.appendToLog(tr("Nothing found in the folder %1.").arg(fullPath(SettingsModel::programmerFolder())));
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
    const QSignalBlocker port(m_view.port());
    const QSignalBlocker speed(m_view.speed());
    const QSignalBlocker language(m_view.language());

    // The programmer's list is not blocked: its catalogue entry is loaded here and rebuilds the port list. That list
    // is blocked, so the stored port survives the rebuild and is found again in it.
    const SettingsRecord& settings = m_avrdude.settings();
    showProgrammer();
    showPort();
    m_view.speed()->setCurrentText(settings.speed);
    m_view.language()->setCurrentText(settings.language);
}

void SettingsPresenter::showProgrammer()
{
    const int index = m_view.programmer()->findText(m_avrdude.settings().programmer.name);
    m_view.programmer()->setCurrentIndex(index);
    if (index < 0)
        setPortMode({}); // the ports of another programmer are none of its
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
    const auto report = [this](const QString& text) {
        QMessageBox::information(&m_view, text, text);
        const QSignalBlocker blocker(m_view.programmer());
        showProgrammer(); // the one that the next run uses
    };
    const JsonFile file = JsonFile::read(SettingsModel::programmerFile(name));
    switch (file.state) {
    case JsonFile::State::NotFound:
        report(tr("JSON FILE NOT FOUND"));
        return;
    case JsonFile::State::CannotOpen:
        report(tr("Cannot open file"));
        return;
    case JsonFile::State::ParseError:
        report(tr("JSON FILE ERROR"));
        return;
    case JsonFile::State::Parsed:
        break;
    }

    const QJsonObject entry = file.document.object();
    SettingsRecord& settings = m_avrdude.settings();
    settings.programmer.name = name;
    settings.programmer.id = entry.value(QLatin1String("id")).toString();
    settings.arguments = entry.value(QLatin1String("arguments")).toString();
    setPortMode(entry.value(QLatin1String("port")).toString());
}

void SettingsPresenter::setPortMode(const QString& mode)
{
    QComboBox* port = m_view.port();
    {
        // An emptied list is no choice of a port. Its first new item is one, unless a refresh is under way.
        const QSignalBlocker blocker(port);
        port->clear();
    }
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
