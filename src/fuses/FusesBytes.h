#pragma once

#include "fuses/FuseMeanings.h"

#include <QObject>
#include <QVector>

class Avrdude;
class FusesBytePresenter;
class FusesBytesView;

/// Builds one editor for each fuse byte of the settings record, and lets them show it again. Owned by the Fuses tab.
class FusesBytes : public QObject
{
    Q_OBJECT

public:
    FusesBytes(Avrdude& avrdude, FusesBytesView& view, QObject* parent = nullptr);

    /// Replaces all editors by those of the record's present list, and notes in the record whether there are any. May
    /// be called from a handler of one of the old editors: they go when it has returned.
    void rebuild();

    /// Lets every editor take its byte's value over into the bits and show both.
    void refresh();

private:
    QWidget* makeEditor(int index);

    Avrdude& m_avrdude;
    FusesBytesView& m_view;
    FuseMeanings m_meanings;
    QVector<FusesBytePresenter*> m_editors; ///< by place in the record's list
};
