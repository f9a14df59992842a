#include "settings/SettingsView.h"

#include "base/ListComboBox.h"
#include "base/RowBox.h"

#include <QHBoxLayout>

namespace {

constexpr int margin = 6; // pixels; the strip is the widest part of the window

} // namespace

SettingsView::SettingsView(QWidget* parent)
    : QGroupBox(QStringLiteral("Settings"), parent)
{
    for (QComboBox*& comboBox : m_comboBoxes) {
        const bool isSpeed = &comboBox == &m_comboBoxes[2]; // short, and always shown whole
        comboBox = new ListComboBox(isSpeed ? ListComboBox::Width::OfEntries : ListComboBox::Width::Any, this);
    }

    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(margin, margin, margin, margin);
    const auto addBox = [this, layout](const QString& title, std::initializer_list<QWidget*> widgets) {
        auto* box = new RowBox(title, widgets, this);
        box->row()->setContentsMargins(margin, margin, margin, margin);
        layout->addWidget(box);
    };
    addBox(tr("Programmer"), {programmer()});
    addBox(tr("Port && Speed ( New MCU -> 185kHz )"), {port(), speed()});
    addBox(tr("Language"), {language()});
}
