#pragma once

#include "mcu/description/SignatureIndex.h"

#include <QWidget>

class Attributes;
class AttributesView;
class Avrdude;
class Eeprom;
class Flash;
class FlashView;
class Fuses;
struct SettingsRecord;

/// The Programming tab: the microcontroller panel and the panels of the two memories, with their logic. Made by the
/// main window, which owns it, as it does the Fuses tab and the runner; both outlive it.
class Program : public QWidget
{
    Q_OBJECT

public:
    Program(Avrdude& avrdude, Fuses& fuses, QWidget* parent);

    /// Shows the settings record's microcontroller and files again.
    void refresh();

    /// Does what picking the microcontroller called @p name in the list does.
    void chooseMcu(const QString& name);

    /// Opens the dialog for the flash file to write, as its button does.
    void browseForFlash();

private:
    void onMcuSelected(const QString& name);

    SettingsRecord& m_settings;
    Fuses& m_fuses;
    SignatureIndex m_signatures;
    AttributesView* m_attributesView;
    FlashView* m_flashView;
    Attributes* m_attributes;
    Flash* m_flash;
    Eeprom* m_eeprom;
};
