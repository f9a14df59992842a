#pragma once

#include <QGroupBox>

#include <array>

class QComboBox;

/// The strip of four lists under the tabs.
class SettingsView : public QGroupBox
{
    Q_OBJECT

public:
    explicit SettingsView(QWidget* parent = nullptr);

    [[nodiscard]] QComboBox* programmer() const { return m_comboBoxes[0]; }
    [[nodiscard]] QComboBox* port() const { return m_comboBoxes[1]; }
    [[nodiscard]] QComboBox* speed() const { return m_comboBoxes[2]; }
    [[nodiscard]] QComboBox* language() const { return m_comboBoxes[3]; }

private:
    std::array<QComboBox*, 4> m_comboBoxes;
};
