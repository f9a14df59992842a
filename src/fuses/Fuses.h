#pragma once

#include <QWidget>

class Avrdude;
class AvrdudeMessage;
class BytesModel;
class FusesBytes;
class FusesOnChip;
class FusesTextView;
class QScrollArea;
struct SettingsRecord;

/// The Fuses tab: an editor for each fuse byte of the microcontroller, and what is done with all of them. Made by the
/// main window, which owns it; picking a microcontroller in the Programming tab fills it anew.
class Fuses : public QWidget
{
    Q_OBJECT

public:
    Fuses(Avrdude& avrdude, QWidget* parent);

    /// Loads the description of the microcontroller called @p name into the settings record, with its fuse bytes at
    /// their defaults. The editors follow with rebuild().
    void loadMcu(const QString& name);

    /// Makes the editors anew from the settings record and shows the first. Due whenever its list of fuse bytes was
    /// replaced.
    void rebuild();

    /// Takes every byte's value over into its bits and lets the editors show both.
    void refresh();

    /// Where the editors scroll.
    [[nodiscard]] QScrollArea& scrollArea() const { return *m_scrollArea; }

    /// Says whether anything is known of a chip of this kind.
    void showLegend();

signals:
    /// Fuse bytes were read from a chip, or written to it, in this tab.
    void chipKnown();

private:
    void onClickDefault();

    SettingsRecord& m_settings;
    const FusesOnChip& m_onChip;
    AvrdudeMessage& m_log;
    BytesModel* m_bytesModel;
    FusesTextView* m_legend;
    QScrollArea* m_scrollArea;
    FusesBytes* m_bytes;
};
