#include "fuses/FusesTextView.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

FusesTextView::FusesTextView(QWidget* parent)
    : QWidget(parent)
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

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(row);
}
