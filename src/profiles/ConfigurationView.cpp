#include "profiles/ConfigurationView.h"

#include "base/RowBox.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

ConfigurationView::ConfigurationView(QWidget* parent)
    : QWidget(parent)
    , m_name(new QLineEdit(this))
    , m_description(new QLineEdit(this))
    , m_add(new QPushButton(tr("Add"), this))
    , m_remove(new QPushButton(tr("Remove"), this))
{
    auto* box = new QGroupBox(tr("Add / Remove profile"), this);

    auto* fields = new QHBoxLayout;
    fields->addWidget(new RowBox(tr("Profile name"), {m_name}, box));
    fields->addWidget(new RowBox(tr("Description (optional)"), {m_description}, box));

    auto* buttons = new QHBoxLayout;
    auto* hint = new QLabel(tr("\"Add\" - save current settings as a profile.\n\"Remove\" - remove selected profile."));
    buttons->addWidget(hint);
    buttons->addWidget(m_add);
    buttons->addWidget(m_remove);

    auto* boxLayout = new QVBoxLayout(box);
    boxLayout->addLayout(fields);
    boxLayout->addLayout(buttons);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(box);
}
