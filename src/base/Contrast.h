#pragma once

#include <QColor>
#include <QObject>

class QWidget;

/// Keeps the text of a disabled widget readable, which the toolkit draws so faintly that weak eyes lose it, in whatever
/// colours the desktop has or turns to.
class Contrast : public QObject
{
    Q_OBJECT

public:
    /// From now on @p widget, and what inherits its palette, draws disabled text with @p share (0 to 1) of the
    /// difference to the ground that enabled text has. Below a style sheet nothing inherits: there each widget wants
    /// its own.
    static void liftDisabled(QWidget& widget, double share);

    /// The colour that has @p share (0 to 1) of the difference between @p ground and @p text.
    [[nodiscard]] static QColor between(const QColor& ground, const QColor& text, double share);

    static constexpr double whole = 1;
    static constexpr double half = 0.5; ///< more than 3 to 1 in the light and the dark palette of the usual style

    bool eventFilter(QObject* object, QEvent* event) override;

private:
    Contrast(QWidget& widget, double share);

    void lift();

    QWidget& m_widget;
    double m_share;
    bool m_isLifting = false;
};
