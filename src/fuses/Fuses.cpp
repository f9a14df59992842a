#include "fuses/Fuses.h"

#include "app/log/AvrdudeMessage.h"
#include "app/record/SettingsRecord.h"
#include "avrdude/Avrdude.h"
#include "base/Box.h"
#include "fuses/FuseRequests.h"
#include "fuses/FusesButtons.h"
#include "fuses/FusesButtonsView.h"
#include "fuses/FusesBytes.h"
#include "fuses/FusesBytesView.h"
#include "fuses/FusesTextView.h"
#include "mcu/description/BytesModel.h"

#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>

Fuses::Fuses(Avrdude& avrdude, QWidget* parent)
    : QWidget(parent)
    , m_settings(avrdude.settings())
    , m_onChip(avrdude.fusesOnChip())
    , m_log(avrdude.log())
    , m_bytesModel(new BytesModel(m_settings, this))
    , m_legend(new FusesTextView(this))
    , m_scrollArea(new QScrollArea(this))
{
    auto* bytesView = new FusesBytesView;
    m_scrollArea->setFocusPolicy(Qt::ClickFocus); // the Tab key would stop where nothing is seen of it
    m_scrollArea->setWidgetResizable(true);
    m_scrollArea->setWidget(bytesView);
    m_scrollArea->setStyleSheet(QStringLiteral("QScrollArea { border: none; background: transparent; }"));
    m_scrollArea->viewport()->setAutoFillBackground(false);
    bytesView->setAutoFillBackground(false);
    auto* buttonsView = new FusesButtonsView(this);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_legend);
    layout->addWidget(m_scrollArea);
    layout->addWidget(buttonsView);

    m_bytes = new FusesBytes(m_settings, *bytesView, *m_scrollArea, this);
    auto* buttons = new FusesButtons(avrdude, *buttonsView, this);
    connect(buttons, &FusesButtons::setReadingFusesEmit, this, &Fuses::refresh);
    connect(buttons, &FusesButtons::known, this, &Fuses::showLegend);
    connect(buttons, &FusesButtons::known, this, &Fuses::chipKnown);
    connect(buttonsView->defaultButton(), &QPushButton::clicked, this, &Fuses::onClickDefault);
}

void Fuses::loadMcu(const QString& name)
{
    m_bytesModel->load(name);
}

void Fuses::rebuild()
{
    m_bytes->rebuild();
    m_scrollArea->verticalScrollBar()->setValue(0);
    showLegend();
    const QString leftOut = FuseRequests::leftOut(m_settings.fusesBytes);
    if (!leftOut.isEmpty())
        m_log.appendLine(leftOut);
}

void Fuses::refresh()
{
    m_bytes->refresh();
}

void Fuses::onClickDefault()
{
    restoreDefaults(m_settings.fusesBytes);
    refresh();
    Box::tell(this, QStringLiteral("FUSES"), tr("Fuse bytes set to default values successfully."),
              FuseRequests::remark(m_settings.fusesBytes));
}

void Fuses::showLegend()
{
    m_legend->setUnread(!m_settings.fusesBytes.isEmpty() && !m_onChip.knows(m_settings.mcuId));
}
