#include "profiles/ConfigurationView.h"

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
    const auto addField = [box, fields](const QString& title, QLineEdit* field) {
        auto* fieldBox = new QGroupBox(title, box);
        auto* fieldLayout = new QHBoxLayout(fieldBox);
        fieldLayout->addWidget(field);
        fields->addWidget(fieldBox);
    };
    addField(tr("Profile name"), m_name);
    addField(tr("Description (optional)"), m_description);

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
