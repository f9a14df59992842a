#pragma once

#include <QWidget>

#include <memory>

class Avrdude;
class Eeprom;
class Flash;

/// The Programming tab.
class Program : public QWidget
{
    Q_OBJECT

public:
    Program(Avrdude& avrdude, QWidget* parent);
    ~Program() override;

    /// Shows the settings record's files again.
    void refresh();

private:
    std::unique_ptr<Flash> m_flash;
    std::unique_ptr<Eeprom> m_eeprom;
};
