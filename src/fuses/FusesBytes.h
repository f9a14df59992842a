#pragma once

#include "fuses/FuseMeanings.h"

#include <QObject>
#include <QVector>

class FusesBytePresenter;
class FusesByteView;
class FusesBytesView;

/// Builds one editor for each fuse byte of the settings record, and lets them show it again. Owned by the Fuses tab;
/// the record outlives it.
class FusesBytes : public QObject
{
    Q_OBJECT

public:
    /// The Tab key comes to the editors from @p before, which outlives them and takes the focus by a click at least.
    FusesBytes(SettingsRecord& settings, FusesBytesView& view, QWidget& before, QObject* parent = nullptr);

    /// Brings bits and values of the record's present list together, replaces all editors by those of that list, and
    /// notes in the record whether there are any. May be called from a handler of one of the old editors: they go when
    /// it has returned.
    void rebuild();

    /// Takes every byte's value over into its bits and lets the editors show both.
    void refresh();

private:
    FusesByteView* makeEditor(int index);
    void explain();
    void explainAbsence();

    SettingsRecord& m_settings;
    FusesBytesView& m_view;
    QWidget& m_before;
    FuseMeanings m_meanings;
    QVector<FusesBytePresenter*> m_editors; ///< by place in the record's list
};
