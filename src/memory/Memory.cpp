#include "memory/Memory.h"

#include "base/Box.h"
#include "base/JsonFile.h"
#include "mcu/description/BytesModel.h"
#include "memory/FileCheck.h"
#include "memory/FirmwareFile.h"
#include "memory/MemoryRequest.h"
#include "memory/MemoryView.h"

#include <QDir>
#include <QFileInfo>
#include <QLocale>
#include <QMessageBox>
#include <QPushButton>
#include <QRegularExpression>

#include <utility>

namespace {

QString timeOf(const QFileInfo& info)
{
    return Memory::tr("changed on %1").arg(QLocale().toString(info.lastModified(), QLocale::ShortFormat));
}

} // namespace

Memory::Memory(MemoryView& view, Avrdude& avrdude, const MemoryKind& kind, QObject* parent)
    : QObject(parent)
    , m_view(view)
    , m_avrdude(avrdude)
    , m_kind(kind)
{
    connect(view.writePath(), &QLineEdit::textChanged, this, &Memory::setFilePathWrite);
    connect(view.readPath(), &QLineEdit::textChanged, this, &Memory::setFilePathRead);
    for (PathField* path : {view.writePath(), view.readPath()})
        path->setDescription([this](const QString& file) { return describe(file); });
}

void Memory::setFilePathWrite(const QString& path)
{
    const bool hasPath = !path.isEmpty();
    SettingsRecord& settings = m_avrdude.settings();
    settings.*m_kind.writeFile = path;
    if (hasPath)
        settings.*m_kind.writeCommand = m_kind.request("w", path).arguments();
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
    return m_kind.formatOf(suffix);
}

void Memory::refresh()
{
    m_view.writePath()->setText(fileToWrite());
    if (m_isShown && fileToRead() != m_view.readPath()->text())
        m_foreignRead = fileToRead(); // what is shown first, at the start, is the user's own
    m_isShown = true;
    m_view.readPath()->setText(fileToRead());
}

void Memory::startWrite(Avrdude::Callback whenDone)
{
    const QStringList command = m_kind.commandFor(m_avrdude.settings()).value_or(QStringList());
    if (!command.isEmpty())
        start(MemoryRequest::from(command), command, std::move(whenDone));
}

void Memory::startVerify(const QString& file, Avrdude::Callback whenDone)
{
    const MemoryRequest verification = m_kind.request("v", file);
    start(verification, verification.arguments(), std::move(whenDone));
}

void Memory::startRead(Avrdude::Callback whenDone)
{
    const MemoryRequest reading = m_kind.request("r", fileToRead());
    if (m_avrdude.turnsAway() || !mayReplace(reading.file))
        return;
    start(reading, reading.arguments(), [this, file = reading.file, whenDone = std::move(whenDone)] {
        m_lastRead = file;
        m_read.insert(fullPath(file), QFileInfo(file).lastModified());
        whenDone();
    });
}

void Memory::showWritten()
{
    // avrdude verifies what it wrote unless it was told not to, and says so: up to 7.x before it does, 8.x after it
    // has, in the words of a verification alone, below the line that it writes.
    const QString output = m_avrdude.output();
    const QLatin1String memory(m_kind.memory);
    static const QRegularExpression writing(QStringLiteral("^Writing \\d+ bytes? to "),
                                            QRegularExpression::MultilineOption);
    const bool verified = output.contains(QLatin1String("verifying ") + memory)
        || (output.contains(writing) && output.contains(QLatin1String(" of ") + memory + QLatin1String(" verified")));
    showBox(verified ? tr(m_kind.written) + QLatin1Char('\n') + tr(m_kind.verified) : tr(m_kind.written));
}

void Memory::showVerified()
{
    showBox(tr(m_kind.verified));
}

void Memory::showRead()
{
    const QFileInfo info(m_lastRead);
    const MemoryRequest reading = m_kind.request("r", m_lastRead);
    QString fault;
    if (!m_lastRead.isEmpty() && !info.exists())
        fault = tr("The file is not there: avrdude has not written it.");
    else if (info.isFile()
             && (info.size() == 0 || FirmwareFile::read(m_lastRead, reading.format, reading.memory, 0).bytes == 0))
        fault = tr("The file is empty: the chip is blank or locked, or the disk is full.");
    Box::tell(&m_view, QLatin1String(m_kind.title), tr(m_kind.read), fault,
              fault.isEmpty() ? QMessageBox::Information : QMessageBox::Warning);
}

bool Memory::mayReplace(const QString& path)
{
    // What is picked in the row's dialog is meant to be replaced, and so is what a former reading wrote there. A
    // profile may name any file.
    const QFileInfo info(path);
    if (!(m_view.readPath()->isByHand() || path == m_foreignRead) || !info.isFile() || info.size() == 0
        || m_read.value(fullPath(path)) == info.lastModified())
        return true;
    const QStringList lines {fullPath(path),
                             tr("%1 bytes").arg(info.size()) + QLatin1String(", ") + timeOf(info),
                             {},
                             tr("Do you want to replace it?")};
    return Box::ask(&m_view, QLatin1String(m_kind.title), tr("Reading would replace this file:"),
                    lines.join(QLatin1Char('\n')));
}

QString Memory::describe(const QString& path) const
{
    // A file of another computer is not looked at before somebody wants it: a login might go out to whoever named it.
    const bool isElsewhere = QDir::fromNativeSeparators(path).startsWith(QLatin1String("//"));
    const QFileInfo info(path);
    if (isElsewhere || !info.isFile())
        return fullPath(path);
    const MemoryRequest writing = m_kind.request("w", path);
    const qint64 memorySize = BytesModel::memorySize(m_avrdude.settings(), writing.memory);
    const FirmwareFile file = FirmwareFile::read(path, writing.format, writing.memory, memorySize);
    QStringList lines {fullPath(path)};
    if (file.bytes < 0 || !file.fault.isEmpty()) {
        lines += tr("%1 bytes").arg(info.size());
    } else if (memorySize <= 0) {
        lines += tr("%1 bytes of data").arg(file.bytes);
    } else {
        const double share = 100.0 * static_cast<double>(file.bytes) / static_cast<double>(memorySize);
        lines += tr("%1 bytes of data, %2 % of the memory")
                     .arg(file.bytes)
                     .arg(QLocale().toString(share, 'f', share < 10 ? 1 : 0));
    }
    lines += timeOf(info);
    if (!file.fault.isEmpty())
        lines += file.fault;
    return lines.join(QLatin1Char('\n'));
}

void Memory::start(const MemoryRequest& request, const QStringList& arguments, Avrdude::Callback whenDone)
{
    if (m_avrdude.turnsAway())
        return; // no box belongs over a run
    if (FileCheck::passes(&m_view, m_avrdude.settings(), request))
        m_avrdude.execute(arguments, std::move(whenDone));
}

void Memory::showBox(const QString& text)
{
    QMessageBox::information(&m_view, QLatin1String(m_kind.title), text);
}
