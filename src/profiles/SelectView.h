#pragma once

#include <QWidget>

class QCheckBox;

/// Which memory areas a profile writes, a check box each. Owned by the Profiles tab.
class SelectView : public QWidget
{
    Q_OBJECT

public:
    explicit SelectView(QWidget* parent = nullptr);

    [[nodiscard]] QCheckBox* flash() const { return m_flash; }
    [[nodiscard]] QCheckBox* eeprom() const { return m_eeprom; }
    [[nodiscard]] QCheckBox* fuses() const { return m_fuses; }

private:
    QCheckBox* m_flash;
    QCheckBox* m_eeprom;
    QCheckBox* m_fuses;
};
