#include "memory/Memory.h"

#include "memory/MemoryRequest.h"
#include "memory/MemoryView.h"
#include "memory/RawFile.h"

#include <QFileInfo>
#include <QHash>
#include <QMessageBox>
#include <QPushButton>

#include <utility>

Memory::Memory(MemoryView& view, Avrdude& avrdude, const Kind& kind, QObject* parent)
    : QObject(parent)
    , m_view(view)
    , m_avrdude(avrdude)
    , m_kind(kind)
{
    connect(view.writePath(), &QLineEdit::textChanged, this, &Memory::setFilePathWrite);
    connect(view.readPath(), &QLineEdit::textChanged, this, &Memory::setFilePathRead);
}

void Memory::setFilePathWrite(const QString& path)
{
    const bool hasPath = !path.isEmpty();
    SettingsRecord& settings = m_avrdude.settings();
    settings.*m_kind.writeFile = path;
    if (hasPath)
        settings.*m_kind.writeCommand = request("w", path).arguments();
    m_view.writeButton()->setEnabled(hasPath);
    m_view.writeVerifyButton()->setEnabled(hasPath);
    settings.*m_kind.enable = hasPath;
}

void Memory::setFilePathRead(const QString& path)
{
    const bool hasPath = !path.isEmpty();
    m_avrdude.settings().*m_kind.readFile = path;
    m_view.readButton()->setEnabled(hasPath);
    m_view.readVerifyButton()->setEnabled(hasPath);
}

QString Memory::setFormatFile(const QString& suffix) const
{
    // Those of Intel hex, raw and ELF files are avrdude's own. "m" for S-records is not (there it is a value on the
    // command line, and S-records are "s"), so that avrdude refuses them. Deliberate: the guide tells the way out.
    static const QHash<QString, QString> formats {
        {QStringLiteral("hex"), QStringLiteral("i")},  {QStringLiteral("eep"), QStringLiteral("i")},
        {QStringLiteral("bin"), QStringLiteral("r")},  {QStringLiteral("s19"), QStringLiteral("m")},
        {QStringLiteral("srec"), QStringLiteral("m")}, {QStringLiteral("elf"), QStringLiteral("e")},
    };
    // Deliberate: no code of avrdude's own, but passed on unchanged, for the flash only.
    if (m_kind.passesA90 && suffix == QLatin1String("a90"))
        return suffix;
    return formats.value(suffix, QStringLiteral("a"));
}

void Memory::refresh()
{
    m_view.writePath()->setText(fileToWrite());
    m_view.readPath()->setText(fileToRead());
}

void Memory::startWrite(Avrdude::Callback whenDone)
{
    const QStringList command = m_avrdude.settings().*m_kind.writeCommand; // a profile brings its own
    start(MemoryRequest::from(command), command, std::move(whenDone));
}

void Memory::startVerify(const QString& file, Avrdude::Callback whenDone)
{
    const MemoryRequest verification = request("v", file);
    start(verification, verification.arguments(), std::move(whenDone));
}

void Memory::startRead(Avrdude::Callback whenDone)
{
    const MemoryRequest reading = request("r", fileToRead());
    start(reading, reading.arguments(), std::move(whenDone));
}

void Memory::showWritten()
{
    // avrdude verifies what it wrote unless it was told not to, and says so.
    const bool verified = m_avrdude.output().contains(QLatin1String("verifying ") + QLatin1String(m_kind.memory));
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

MemoryRequest Memory::request(const char* operation, const QString& path) const
{
    return {QLatin1String(m_kind.memory), QLatin1String(operation), path,
            setFormatFile(QFileInfo(path).suffix().toLower())};
}

void Memory::start(const MemoryRequest& request, const QStringList& arguments, Avrdude::Callback whenDone)
{
    if (m_avrdude.isBusy())
        return; // no box belongs over a run
    const QString fault = RawFile::fault(m_avrdude.settings(), request);
    if (fault.isEmpty())
        m_avrdude.execute(arguments, std::move(whenDone));
    else
        showBox(fault);
}

void Memory::showBox(const QString& text)
{
    QMessageBox::information(&m_view, QLatin1String(m_kind.title), text);
}
