#include "profiles/ProgrammingView.h"

#include "base/ListComboBox.h"
#include "base/RowBox.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QPushButton>

ProgrammingView::ProgrammingView(QWidget* parent)
    : QWidget(parent)
    , m_profiles(new ListComboBox(ListComboBox::Width::Any, this))
    , m_write(new QPushButton(tr("Write"), this))
    , m_externalButton(std::make_unique<QCheckBox>(tr("Use external button")))
{
    m_write->setEnabled(false);

    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(new RowBox(tr("Profiles"), {m_profiles}, this));
    layout->addWidget(new RowBox(tr("Write Selected Areas"), {m_write}, this));
}

ProgrammingView::~ProgrammingView() = default;
