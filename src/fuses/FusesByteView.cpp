#include "fuses/FusesByteView.h"

#include "base/Contrast.h"
#include "base/FocusTip.h"
#include "fuses/HexField.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

FusesByteView::FusesByteView(QWidget* parent)
    : QWidget(parent)
    , m_box(new QGroupBox(this))
{
    auto* tip = new FocusTip(*this); // what the bits mean, without a mouse
    constexpr int bitCount = 8;
    for (int i = 0; i < bitCount; ++i) {
        auto* checkBox = new QCheckBox(this);
        connect(checkBox, &QCheckBox::stateChanged, this, [this, checkBox] { emit bitChanged(m_fusesBit, checkBox); });
        m_fusesBit.prepend(checkBox);
        tip->watch(checkBox);
        Contrast::liftDisabled(*checkBox, Contrast::half);
        checkBox->setContextMenuPolicy(Qt::CustomContextMenu);
        connect(checkBox, &QCheckBox::customContextMenuRequested, this, [this, checkBox](const QPoint& position) {
            emit settingsWanted(static_cast<int>(m_fusesBit.indexOf(checkBox)), checkBox->mapToGlobal(position));
        });
    }
    m_value = new HexField(this);
    tip->watch(m_value);
    auto* label = new QLabel(QStringLiteral("HEX"), this);
    const int width = fontMetrics().boundingRect(label->text()).width();
    label->setFixedWidth(width);
    m_value->setFixedWidth(width);

    // Flat, so that the three bytes that most parts have fit into the window without scrolling.
    auto* rows = new QVBoxLayout(m_box);
    rows->setContentsMargins(9, 3, 9, 3);
    rows->setSpacing(2);
    const auto addRow = [this, rows](int highestBit, QWidget* last) {
        auto* row = new QHBoxLayout;
        for (int i = highestBit; i > highestBit - 4; --i)
            row->addWidget(m_fusesBit.at(i), 1); // equal widths, so that the two rows line up
        row->addWidget(last);
        rows->addLayout(row);
    };
    addRow(7, label);
    addRow(3, m_value);

    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_box);
}

void FusesByteView::putIntoTabOrder(QWidget* before)
{
    for (auto checkBox = m_fusesBit.crbegin(); checkBox != m_fusesBit.crend(); ++checkBox) {
        setTabOrder(before, *checkBox);
        before = *checkBox;
    }
    setTabOrder(before, m_value);
}

void FusesByteView::setTitle(const QString& title)
{
    m_box->setTitle(title);
    m_value->setAccessibleName(title);
}
