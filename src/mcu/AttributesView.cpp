#include "mcu/AttributesView.h"

#include "app/ListComboBox.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace {

constexpr int visibleItems = 15;

} // namespace

AttributesView::AttributesView(QWidget* parent)
    : QWidget(parent)
    , m_mcuList(new ListComboBox(this))
    , m_autoDetect(std::make_unique<QPushButton>(tr("Auto-Detect")))
    , m_erase(new QPushButton(tr("Erase all"), this))
    , m_read(new QPushButton(tr("Read"), this))
    , m_calibrationByte(new QLineEdit(this))
{
    m_mcuList->setMaxVisibleItems(visibleItems);
    m_calibrationByte->setAlignment(Qt::AlignCenter);

    auto* mcuBox = new QGroupBox(tr("MCU"), this);
    auto* mcuLayout = new QHBoxLayout(mcuBox);
    mcuLayout->addWidget(m_mcuList);
    mcuLayout->addWidget(m_erase);

    auto* calibrationBox = new QGroupBox(tr("Calibration Byte"), this);
    auto* calibrationLayout = new QHBoxLayout(calibrationBox);
    calibrationLayout->addWidget(m_read);
    calibrationLayout->addWidget(new QLabel(QStringLiteral("HEX"), this));
    calibrationLayout->addWidget(m_calibrationByte);

    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(mcuBox);
    layout->addWidget(calibrationBox);
}

AttributesView::~AttributesView() = default;
