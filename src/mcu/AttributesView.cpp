#include "mcu/AttributesView.h"

#include "base/RowBox.h"
#include "base/RunButton.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace {

constexpr int visibleItems = 15;

} // namespace

AttributesView::AttributesView(QWidget* parent)
    : QWidget(parent)
    , m_mcuList(new ListComboBox(ListComboBox::Width::Any, this))
    , m_autoDetect(std::make_unique<QPushButton>(tr("Auto-Detect")))
    , m_erase(new RunButton(tr("Erase all"), this))
    , m_read(new RunButton(tr("Read"), this))
    , m_calibrationByte(new QLineEdit(this))
{
    m_mcuList->setMaxVisibleItems(visibleItems);
    m_calibrationByte->setAlignment(Qt::AlignCenter);
    constexpr int edges = 16; // pixels, of the field around its text
    const QString fourBytes = QStringLiteral("A7 A1 A2 A3"); // as many as parts have, one for each speed
    m_calibrationByte->setFixedWidth(fontMetrics().horizontalAdvance(fourBytes) + edges);

    auto* label = new QLabel(QStringLiteral("HEX"), this);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    auto* mcu = new RowBox(tr("MCU"), {m_mcuList, m_erase}, this);
    mcu->row()->setStretchFactor(m_mcuList, 1);
    layout->addWidget(mcu, 1);
    layout->addWidget(new RowBox(tr("Calibration Byte"), {m_read, label, m_calibrationByte}, this));
}

AttributesView::~AttributesView() = default;
