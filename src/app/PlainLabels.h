#pragma once

#include <QObject>

/// Has labels show their texts as they stand, those of boxes, tooltips and the toolkit's own dialogs included: the
/// toolkit would guess what is markup, and what is shown comes from profiles, language files and servers as well, whose
/// markup could load and open anything. A label that is meant to hold markup says so itself. Looks at all events; made
/// by the main window before any label.
class PlainLabels : public QObject
{
    Q_OBJECT

public:
    PlainLabels();

    bool eventFilter(QObject* object, QEvent* event) override;
};
