#pragma once

#include "fuses/FuseMeanings.h"

#include <QMenu>

/// Offers the settings of a field of a fuse byte in words: the present one is checked, the factory's marked. Many are
/// grouped by what stands before the semicolon. Goes when it is closed.
class SettingsMenu : public QMenu
{
    Q_OBJECT

public:
    SettingsMenu(const QVector<FuseMeanings::Setting>& settings, QWidget* parent);

signals:
    /// The user chose the setting that the byte has with @p value.
    void chosen(quint32 value);
};
