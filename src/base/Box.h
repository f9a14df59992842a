#pragma once

#include <QMessageBox>

/// A modal box that says more than one text.
class Box : public QMessageBox
{
    Q_OBJECT

public:
    /// What is in @p below stands in a part of its own under @p text; it may be empty.
    Box(Icon icon, const QString& title, const QString& text, const QString& below, StandardButtons buttons,
        QWidget* parent);

    /// Tells @p text and what is to be added.
    static void tell(QWidget* parent, const QString& title, const QString& text, const QString& below = {},
                     Icon icon = Information);

    /// Asks before something that cannot be taken back. Returns true when the user chose Yes; No is what Enter and
    /// Escape choose.
    [[nodiscard]] static bool ask(QWidget* parent, const QString& title, const QString& text, const QString& below);
};
