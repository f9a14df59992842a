#include "settings/SettingsPresenter.h"

#include "app/log/AvrdudeMessage.h"
#include "app/record/SettingsRecord.h"
#include "avrdude/Avrdude.h"
#include "avrdude/ExtraArguments.h"
#include "base/JsonFile.h"
#include "base/ProductInfo.h"
#include "base/ShownText.h"
#include "i18n/LanguageFiles.h"
#include "settings/SettingsModel.h"
#include "settings/SettingsView.h"

#include <QDebug>
#include <QJsonObject>
#include <QMessageBox>
#include <QSignalBlocker>

SettingsPresenter::SettingsPresenter(Avrdude& avrdude, SettingsModel& model, SettingsView& view, QObject* parent)
    : QObject(parent)
    , m_settings(avrdude.settings())
    , m_log(avrdude.log())
    , m_model(model)
    , m_view(view)
{
    // Filled before they are connected: what happens to stand first is no choice of the user's.
    view.programmer()->addItems(model.programmerList());
    view.programmer()->setOtherWords(
        [](const QString& name) { return otherNames(SettingsModel::programmerFolder(), name); });
    if (view.programmer()->count() == 0)
        m_log.appendLine(tr("Nothing found in the folder %1.").arg(fullPath(SettingsModel::programmerFolder())));
    view.speed()->addItems(model.speedList());
    view.language()->addItems(model.languageList());

    connect(view.programmer(), &QComboBox::currentTextChanged, this, &SettingsPresenter::loadProgrammer);
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

    const bool isStart = m_shownGeneration < 0;
    const bool isReplaced = m_settings.generation != m_shownGeneration;
    m_shownGeneration = m_settings.generation;
    showProgrammer();
    ProgrammerEntry entry;
    if (m_view.programmer()->currentIndex() < 0) {
        setPortMode({}); // the ports of another programmer are none of its
    } else if (isStart || isReplaced) {
        entry = SettingsModel::programmerEntry(m_settings.programmer.name);
    }
    if (isStart || isReplaced) {
        const ExtraArguments own(entry.arguments);
        // At the start the entry's arguments count, so that an edited entry does. Later it is a profile that was
        // loaded: its own count if it has any, whatever was shown before it.
        if (!isStart && !m_settings.arguments.isEmpty())
            entry.arguments = m_settings.arguments;
        if (m_view.programmer()->currentIndex() >= 0)
            choose(m_settings.programmer.name, entry);
        const QStringList further = ExtraArguments(m_settings.arguments).furtherThan(own);
        if (!further.isEmpty())
            m_log.appendLine(tr("avrdude gets further arguments that the programmer's file does not have: %1")
                                 .arg(shownText(further.join(QLatin1Char(' ')))));
    }
    showPort();
    m_view.speed()->setCurrentText(m_settings.speed);
    QString otherSpeed;
    if (m_view.speed()->currentText() != m_settings.speed) // the list shows its first entry
        otherSpeed = tr("Until you choose a speed, that of the settings is used: %1").arg(shownText(m_settings.speed));
    m_view.speed()->setRemark(otherSpeed);
    if (!otherSpeed.isEmpty() && (isStart || isReplaced))
        m_log.appendLine(otherSpeed);
    m_view.language()->setCurrentText(m_settings.language);
    tell(entry);
}

void SettingsPresenter::loadProgrammer(const QString& name)
{
    const ProgrammerEntry entry = SettingsModel::programmerEntry(name);
    choose(name, entry);
    if (entry.portMode == QLatin1String("com")) {
        m_view.port()->setCurrentIndex(0); // the port of another programmer is not meant
        if (m_view.port()->count() > 0)
            setComPorts(m_view.port()->currentText());
        else
            m_settings.hasFormerPort = true;
    }
    if (entry.fault.isEmpty())
        emit chosen();
    tell(entry);
    const QSignalBlocker blocker(m_view.programmer());
    showProgrammer(); // the one that the next run uses
}

void SettingsPresenter::choose(const QString& name, const ProgrammerEntry& entry)
{
    if (!entry.fault.isEmpty())
        return;
    m_settings.programmer.name = name;
    m_settings.programmer.id = entry.id;
    m_settings.arguments = entry.arguments;
    m_settings.hasFormerPort = false;
    setPortMode(entry.portMode);
}

void SettingsPresenter::tell(const ProgrammerEntry& entry)
{
    if (!entry.fault.isEmpty())
        QMessageBox::information(&m_view, entry.fault, entry.fault);
}

void SettingsPresenter::showProgrammer()
{
    m_view.programmer()->setCurrentIndex(m_view.programmer()->findText(m_settings.programmer.name));
}

void SettingsPresenter::showPort()
{
    QComboBox* port = m_view.port();
    const int index = port->findData(m_settings.port);
    port->setCurrentIndex(index < 0 ? port->findText(m_settings.port) : index); // a fixed port is its own name
}

void SettingsPresenter::setPortMode(const QString& mode)
{
    QComboBox* port = m_view.port();
    const QSignalBlocker blocker(port); // what happens to stand in a new list is no choice of the user's
    port->clear();
    if (mode == QLatin1String("usb")) {
        port->addItem(QStringLiteral("usb"));
        port->setEnabled(false);
        m_settings.port = QStringLiteral("usb");
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
    for (const SerialPort& port : ports) {
        comboBox->addItem(port.name, port.name);
        comboBox->setItemData(comboBox->count() - 1, port.description, Qt::ToolTipRole); // which of them is the adapter
    }
    comboBox->setCurrentText(m_settings.port);
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
    int index = comboBox->findData(m_settings.port);
    if (index < 0 && !m_settings.port.isEmpty())
        index = comboBox->findData(QString(QLatin1String("/dev/") + m_settings.port));
    if (index < 0)
        return;
    comboBox->setCurrentIndex(index);
    m_settings.port = comboBox->itemData(index).toString();
}

void SettingsPresenter::setSpeedProgrammer(const QString& speed)
{
    m_settings.speed = speed;
    m_view.speed()->setRemark({});
    emit chosen();
}

void SettingsPresenter::setLanguage(const QString& language)
{
    m_settings.language = language;

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
    m_settings.port = m_view.port()->currentData().toString();
    emit chosen();
}
