#include "settings/SettingsView.h"

#include "base/RowBox.h"

#include <QHBoxLayout>

namespace {

constexpr int margin = 5; // pixels; the strip is the widest part of the window

} // namespace

SettingsView::SettingsView(QWidget* parent)
    : QGroupBox(QStringLiteral("Settings"), parent)
    , m_programmer(new ListComboBox(ListComboBox::Width::Any, this))
    , m_port(new ListComboBox(ListComboBox::Width::Any, this))
    , m_speed(new ListComboBox(ListComboBox::Width::OfEntries, this)) // short, and always shown whole
    , m_language(new ListComboBox(ListComboBox::Width::Any, this))
{
    constexpr int languageLength = 4; // characters of the width of an X, which hold most languages' names
    m_language->setMinimumContentsLength(languageLength);

    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(margin, margin, margin, margin);
    // Programmers have the longest names, and get what the others leave.
    const auto addBox = [this, layout](const QString& title, std::initializer_list<QWidget*> widgets, int stretch) {
        auto* box = new RowBox(title, widgets, this);
        box->row()->setContentsMargins(margin, margin, margin, margin);
        layout->addWidget(box, stretch);
    };
    addBox(tr("Programmer"), {m_programmer}, 1);
    const QString connection = tr("Port && Speed ( New MCU -> 185kHz )");
    addBox(connection, {m_port, m_speed}, 0);
    for (QComboBox* list : {m_port, static_cast<QComboBox*>(m_speed)})
        list->setAccessibleDescription(list->accessibleName()); // of both
    m_port->setAccessibleName(connection.section(QLatin1String("&&"), 0, 0).trimmed());
    m_speed->setAccessibleName(connection.section(QLatin1String("&&"), 1).trimmed());
    addBox(tr("Language"), {m_language}, 0);
}
