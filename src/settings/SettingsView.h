#pragma once

#include "base/ListComboBox.h"

#include <QGroupBox>

/// The strip of four lists under the tabs. Owned by the settings panel.
class SettingsView : public QGroupBox
{
    Q_OBJECT

public:
    explicit SettingsView(QWidget* parent = nullptr);

    [[nodiscard]] ListComboBox* programmer() const { return m_programmer; }
    [[nodiscard]] QComboBox* port() const { return m_port; }
    [[nodiscard]] ListComboBox* speed() const { return m_speed; }
    [[nodiscard]] QComboBox* language() const { return m_language; }

private:
    ListComboBox* m_programmer;
    QComboBox* m_port;
    ListComboBox* m_speed;
    QComboBox* m_language;
};
