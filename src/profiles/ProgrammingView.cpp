#include "profiles/ProgrammingView.h"

#include "app/ListComboBox.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QPushButton>

ProgrammingView::ProgrammingView(QWidget* parent)
    : QWidget(parent)
    , m_profiles(new ListComboBox(this))
    , m_write(new QPushButton(tr("Write"), this))
    , m_externalButton(std::make_unique<QCheckBox>(tr("Use external button")))
{
    m_write->setEnabled(false);

    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    const auto addBox = [this, layout](const QString& title, QWidget* widget) {
        auto* box = new QGroupBox(title, this);
        auto* boxLayout = new QHBoxLayout(box);
        boxLayout->addWidget(widget);
        layout->addWidget(box);
    };
    addBox(tr("Profiles"), m_profiles);
    addBox(tr("Write Selected Areas"), m_write);
}

ProgrammingView::~ProgrammingView() = default;
