#include "memory/MemoryView.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

constexpr int browseWidth = 24; // pixels

QDir applicationFolder()
{
    return QDir(QCoreApplication::applicationDirPath());
}

/// Where a dialog for the field's text @p path opens.
QString startFolder(const QString& path)
{
    const QFileInfo resolved(applicationFolder().absoluteFilePath(path));
    return resolved.isFile() ? resolved.absolutePath() : resolved.filePath();
}

/// A file below the application's folder is kept relative to it, so that the folder can be moved with its files.
/// avrdude looks for it from the working directory, which is that folder when Korvel is started there.
QString storedPath(const QString& chosen)
{
    const QString relative = applicationFolder().relativeFilePath(chosen);
    const bool outside = relative.startsWith(QLatin1String("..")) || QDir::isAbsolutePath(relative);
    return outside ? chosen : relative;
}

} // namespace

MemoryView::MemoryView(const QString& memory, QWidget* parent)
    : QWidget(parent)
{
    auto* box = new QGroupBox(memory, this);
    m_writeRow = makeRow(tr("Write"), QStringLiteral("SELECT %1 FILE FOR WRITING").arg(memory));
    // An open dialog here too: people overwrite the file they picked last time, and can type a new name.
    m_readRow = makeRow(tr("Read"), QStringLiteral("SELECT %1 FILE FOR READING").arg(memory));

    auto* rows = new QVBoxLayout(box);
    for (const Row& row : {m_writeRow, m_readRow}) {
        auto* line = new QHBoxLayout;
        line->addWidget(row.path);
        line->addWidget(row.browse);
        line->addWidget(row.action);
        line->addWidget(row.verify);
        rows->addLayout(line);
    }
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(box);
}

MemoryView::Row MemoryView::makeRow(const QString& action, const QString& dialogTitle)
{
    const Row row {
        new QLineEdit(this),
        new QPushButton(QStringLiteral("..."), this),
        new QPushButton(action, this),
        new QPushButton(tr("Verify"), this),
    };
    row.browse->setFixedWidth(browseWidth);
    row.action->setEnabled(false);
    row.verify->setEnabled(false);
    connect(row.browse, &QPushButton::clicked, this,
            [this, path = row.path, dialogTitle] { browse(*path, dialogTitle); });
    return row;
}

void MemoryView::browse(QLineEdit& path, const QString& dialogTitle)
{
    const QString filters = QStringLiteral("Firmware files (*.hex *.bin *.eep *.s19 *.srec *.elf);;HEX (*.hex);;"
                                           "Binary (*.bin);;EEPROM (*.eep);;ELF (*.elf);;"
                                           "Motorola S-record (*.s19 *.srec);;All files (*.*)");
    const QString chosen = QFileDialog::getOpenFileName(this, dialogTitle, startFolder(path.text()), filters);
    if (!chosen.isEmpty())
        path.setText(storedPath(chosen));
}
