#pragma once

#include "mcu/SignatureIndex.h"

#include <QWidget>

#include <memory>

class Attributes;
class AttributesView;
class Avrdude;
class Eeprom;
class Flash;
class Fuses;

/// The Programming tab: the microcontroller panel and the panels of the two memories.
class Program : public QWidget
{
    Q_OBJECT

public:
    Program(Avrdude& avrdude, Fuses& fuses, QWidget* parent);
    ~Program() override;

    /// Shows the settings record's microcontroller and files again.
    void refresh();

private:
    void onMcuSelected(const QString& name);

    Avrdude& m_avrdude;
    Fuses& m_fuses;
    SignatureIndex m_signatures;
    AttributesView* m_attributesView;
    std::unique_ptr<Attributes> m_attributes;
    std::unique_ptr<Flash> m_flash;
    std::unique_ptr<Eeprom> m_eeprom;
};
