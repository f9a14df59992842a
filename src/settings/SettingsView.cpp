#include "settings/SettingsView.h"

#include "app/ListComboBox.h"

#include <QHBoxLayout>

namespace {

constexpr int margin = 6; // pixels; the strip is the widest part of the window
constexpr int minimumLength = 3; // characters

} // namespace

SettingsView::SettingsView(QWidget* parent)
    : QGroupBox(QStringLiteral("Settings"), parent)
{
    for (QComboBox*& comboBox : m_comboBoxes)
        comboBox = new ListComboBox(this);
    // The speeds are short and always shown whole; the names in the other lists must not make the window wider.
    for (QComboBox* comboBox : {programmer(), port(), language()}) {
        comboBox->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        comboBox->setMinimumContentsLength(minimumLength);
    }

    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(margin, margin, margin, margin);
    const auto addBox = [this, layout](const QString& title, std::initializer_list<QComboBox*> comboBoxes) {
        auto* box = new QGroupBox(title, this);
        auto* boxLayout = new QHBoxLayout(box);
        boxLayout->setContentsMargins(margin, margin, margin, margin);
        for (QComboBox* comboBox : comboBoxes)
            boxLayout->addWidget(comboBox);
        layout->addWidget(box);
    };
    addBox(tr("Programmer"), {programmer()});
    addBox(tr("Port && Speed ( New MCU -> 185kHz )"), {port(), speed()});
    addBox(tr("Language"), {language()});
}
