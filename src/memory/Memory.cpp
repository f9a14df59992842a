#include "memory/Memory.h"

#include "memory/MemoryView.h"

#include <QFileInfo>
#include <QHash>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>

Memory::Memory(MemoryView& view, Avrdude& avrdude, const Kind& kind)
    : m_view(view)
    , m_avrdude(avrdude)
    , m_kind(kind)
{
    connect(view.writePath(), &QLineEdit::textChanged, this, &Memory::setFilePathWrite);
    connect(view.readPath(), &QLineEdit::textChanged, this, &Memory::setFilePathRead);
}

void Memory::setFilePathWrite(const QString& path)
{
    SettingsRecord& settings = m_avrdude.settings();
    settings.*m_kind.writeFile = path;
    if (!path.isEmpty())
        settings.*m_kind.writeCommand = request("w", path);
    settings.*m_kind.enable = !path.isEmpty();
    m_view.writeButton()->setEnabled(!path.isEmpty());
    m_view.writeVerifyButton()->setEnabled(!path.isEmpty());
}

void Memory::setFilePathRead(const QString& path)
{
    m_avrdude.settings().*m_kind.readFile = path;
    m_view.readButton()->setEnabled(!path.isEmpty());
    m_view.readVerifyButton()->setEnabled(!path.isEmpty());
}

QString Memory::setFormatFile(const QString& suffix) const
{
    // The codes are those of avrdude's manual, option -U.
    static const QHash<QString, QString> formats {
        {QStringLiteral("hex"), QStringLiteral("i")},  {QStringLiteral("eep"), QStringLiteral("i")},
        {QStringLiteral("bin"), QStringLiteral("r")},  {QStringLiteral("s19"), QStringLiteral("m")},
        {QStringLiteral("srec"), QStringLiteral("m")}, {QStringLiteral("elf"), QStringLiteral("e")},
    };
    // No code of avrdude's, but passed on for the flash all the same: setups with an avrdude of their own use it.
    if (m_kind.passesA90 && suffix == QLatin1String("a90"))
        return suffix;
    return formats.value(suffix, QStringLiteral("a"));
}

void Memory::refresh()
{
    const SettingsRecord& settings = m_avrdude.settings();
    m_view.writePath()->setText(settings.*m_kind.writeFile);
    m_view.readPath()->setText(settings.*m_kind.readFile);
}

void Memory::startWrite(Avrdude::Callback whenDone)
{
    m_avrdude.execute(m_avrdude.settings().*m_kind.writeCommand, std::move(whenDone));
}

void Memory::startWriteVerify(Avrdude::Callback whenDone)
{
    m_avrdude.execute(request("v", m_avrdude.settings().*m_kind.writeFile), std::move(whenDone));
}

void Memory::startRead(Avrdude::Callback whenDone)
{
    m_avrdude.execute(request("r", m_avrdude.settings().*m_kind.readFile), std::move(whenDone));
}

void Memory::startReadVerify(Avrdude::Callback whenDone)
{
    m_avrdude.execute(request("v", m_avrdude.settings().*m_kind.readFile), std::move(whenDone));
}

void Memory::showWritten()
{
    // avrdude verifies what it wrote unless it was told not to, and says so in the log.
    const bool verified = m_avrdude.logText().contains(QLatin1String("verifying ") + QLatin1String(m_kind.memory));
    showBox(verified ? tr(m_kind.written) + QLatin1Char('\n') + tr(m_kind.verified) : tr(m_kind.written));
}

void Memory::showVerified()
{
    showBox(tr(m_kind.verified));
}

void Memory::showRead()
{
    showBox(tr(m_kind.read));
}

QStringList Memory::request(const char* operation, const QString& path) const
{
    const QString format = setFormatFile(QFileInfo(path).suffix().toLower());
    return {QStringLiteral("-U"),
            QStringLiteral("%1:%2:%3:%4").arg(QLatin1String(m_kind.memory), QLatin1String(operation), path, format)};
}

void Memory::showBox(const QString& text)
{
    QMessageBox::information(&m_view, QLatin1String(m_kind.title), text);
}
