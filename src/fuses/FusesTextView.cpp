#include "fuses/FusesTextView.h"

#include "base/Contrast.h"
#include "base/ElidedLabel.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

FusesTextView::FusesTextView(QWidget* parent)
    : QWidget(parent)
    , m_unread(new ElidedLabel(Qt::ElideRight, this))
{
    // The datasheets' words, the same in every language.
    auto* label = new QLabel(QStringLiteral("Datasheet:"), this);
    auto* programmed = new QCheckBox(QStringLiteral("- programmed (0)"), this);
    auto* unprogrammed = new QCheckBox(QStringLiteral("- unprogrammed (1)"), this);
    programmed->setChecked(true);

    auto* row = new QHBoxLayout;
    row->addStretch();
    for (QWidget* widget : std::initializer_list<QWidget*> {label, programmed, unprogrammed}) {
        widget->setEnabled(false);
        row->addWidget(widget);
    }
    row->addStretch();
    QFont small = m_unread->font();
    small.setPointSizeF(0.85 * QFontInfo(small).pointSizeF());
    m_unread->setFont(small);
    m_unread->setEnabled(false);
    m_unread->showLine(tr("not read from the chip"));
    row->addWidget(m_unread);
    setUnread(false);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(row);
    Contrast::liftDisabled(*this, Contrast::whole); // it is there to be read
}

void FusesTextView::setUnread(bool isUnread)
{
    m_unread->setVisible(isUnread);
}
