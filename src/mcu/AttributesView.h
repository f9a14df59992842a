#pragma once

#include "base/ListComboBox.h"

#include <QWidget>

#include <memory>

class QLineEdit;
class QPushButton;

/// The microcontroller panel: which one it is, what acts on the chip as a whole, and the calibration byte. Owned by the
/// Programming tab.
class AttributesView : public QWidget
{
    Q_OBJECT

public:
    explicit AttributesView(QWidget* parent = nullptr);
    ~AttributesView() override;

    [[nodiscard]] ListComboBox* mcuList() const { return m_mcuList; }
    [[nodiscard]] QPushButton* autoDetectButton() const { return m_autoDetect.get(); }
    [[nodiscard]] QPushButton* eraseButton() const { return m_erase; }
    [[nodiscard]] QPushButton* readButton() const { return m_read; }
    [[nodiscard]] QLineEdit* calibrationByte() const { return m_calibrationByte; }

private:
    ListComboBox* m_mcuList;
    std::unique_ptr<QPushButton> m_autoDetect; ///< deliberately on no panel: avrdude must be told the part to find it
    QPushButton* m_erase;
    QPushButton* m_read;
    QLineEdit* m_calibrationByte;
};
