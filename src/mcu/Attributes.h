#pragma once

#include "avrdude/ReadFile.h"

#include <QObject>

class AttributesView;
class Avrdude;
class SignatureIndex;

/// The logic of the microcontroller panel but for the choice itself, which the Programming tab handles. Lives as
/// long as that tab, which owns the view and the index too.
class Attributes : public QObject
{
    Q_OBJECT

public:
    /// Fills the view's list. No action of the panel asks @p index yet.
    Attributes(Avrdude& avrdude, SignatureIndex& index, AttributesView& view, QObject* parent = nullptr);

    /// Shows the record's microcontroller and calibration byte. Loads nothing. The list shows nothing when it does not
    /// have the microcontroller: another one would not be what the next run uses.
    void refresh();

    /// Forgets the calibration byte: it is another chip's.
    void clearCalibration();

    void eraseAllMcu();

    /// Lets avrdude check the signature, and asks whether to go on. The answer changes nothing.
    void autoDetect();

    /// Empties the field and reads the chip's calibration bytes into a file, then from there into the field.
    void setAvrdudeCmdReadCallByte();

    /// Takes the file of the last reading over into the field and the record, and tells so. Without a value both are
    /// empty then, and the box says why.
    void readFileCallByte();

private:
    void showCalibration(const QString& text);

    Avrdude& m_avrdude;
    AttributesView& m_view;
    ReadFile m_readFile;
};
