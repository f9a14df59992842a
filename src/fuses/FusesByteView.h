#pragma once

#include <QCheckBox> // whole: Qt 6 wants to know what its signals carry
#include <QVector>
#include <QWidget>

class HexField;
class QGroupBox;

/// The widgets of one fuse byte: eight check boxes and the value in hexadecimal. Lives as long as its editor.
class FusesByteView : public QWidget
{
    Q_OBJECT

public:
    explicit FusesByteView(QWidget* parent = nullptr);

    void setTitle(const QString& title);

    /// Lets the Tab key go from @p before to the bits, the highest first, then to the value, and on from there.
    void putIntoTabOrder(QWidget* before);

    /// The check boxes by bit number; a checked one is a programmed bit.
    [[nodiscard]] const QVector<QCheckBox*>& fusesBit() const { return m_fusesBit; }
    [[nodiscard]] HexField* value() const { return m_value; }

signals:
    /// The user changed a check box of @p fusesBit.
    void bitChanged(QVector<QCheckBox*> fusesBit, QCheckBox* checkBox);

    /// The user wants to choose among the settings of the bit @p number, at @p position on the screens.
    void settingsWanted(int number, const QPoint& position);

    /// The value was shown anew.
    void byteChanged(quint32 byte);

private:
    QGroupBox* m_box;
    QVector<QCheckBox*> m_fusesBit;
    HexField* m_value;
};
