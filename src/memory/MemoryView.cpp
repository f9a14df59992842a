#include "memory/MemoryView.h"

#include "base/RunButton.h"

#include <QFileDialog>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>

namespace {

constexpr int browseWidth = 24; // pixels

} // namespace

MemoryView::MemoryView(const QString& memory, QWidget* parent)
    : QWidget(parent)
{
    auto* box = new QGroupBox(memory, this);
    m_writeRow = makeRow(memory, tr("Write"), QStringLiteral("SELECT %1 FILE FOR WRITING").arg(memory));
    // An open dialog here too: people overwrite the file they picked last time, and can type a new name.
    m_readRow = makeRow(memory, tr("Read"), QStringLiteral("SELECT %1 FILE FOR READING").arg(memory));

    auto* rows = new QGridLayout(box); // in which the buttons line up, whatever the length of their words
    int line = 0;
    for (const Row& row : {m_writeRow, m_readRow}) {
        rows->addWidget(row.path, line, 0);
        rows->addWidget(row.browse, line, 1);
        rows->addWidget(row.action, line, 2);
        rows->addWidget(row.verify, line, 3);
        ++line;
    }
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(box);
}

void MemoryView::browseForWriting() const
{
    m_writeRow.browse->setFocus(Qt::ShortcutFocusReason);
    m_writeRow.browse->click();
}

MemoryView::Row MemoryView::makeRow(const QString& memory, const QString& action, const QString& dialogTitle)
{
    const Row row {
        new PathField(this),
        new QPushButton(QStringLiteral("..."), this),
        new RunButton(action, this),
        new RunButton(tr("Verify"), this),
    };
    // The buttons' texts are the same in each row.
    const QString name = memory + QLatin1String(": ") + action;
    row.path->setAccessibleName(name);
    row.action->setAccessibleName(name);
    row.verify->setAccessibleName(name + QLatin1String(": ") + row.verify->text());
    row.browse->setAccessibleName(dialogTitle);
    row.browse->setFixedWidth(browseWidth);
    row.action->setEnabled(false);
    row.verify->setEnabled(false);
    connect(row.browse, &QPushButton::clicked, this,
            [this, path = row.path, dialogTitle] { browse(*path, dialogTitle); });
    return row;
}

void MemoryView::browse(PathField& path, const QString& dialogTitle)
{
    const QString filters = QStringLiteral("Firmware files (*.hex *.bin *.eep *.s19 *.srec *.elf);;HEX (*.hex);;"
                                           "Binary (*.bin);;EEPROM (*.eep);;ELF (*.elf);;"
                                           "Motorola S-record (*.s19 *.srec);;All files (*.*)");
    const QString chosen = QFileDialog::getOpenFileName(this, dialogTitle, path.startFolder(), filters);
    if (!chosen.isEmpty())
        path.setFile(chosen);
}
