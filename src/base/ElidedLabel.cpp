#include "base/ElidedLabel.h"

ElidedLabel::ElidedLabel(Qt::TextElideMode mode, QWidget* parent)
    : QLabel(parent)
    , m_mode(mode)
{
    setTextFormat(Qt::PlainText);
    setAlignment(Qt::AlignRight | Qt::AlignVCenter);
}

void ElidedLabel::showLine(const QString& line)
{
    m_line = line;
    setAccessibleName(line);
    setToolTip(line);
    updateGeometry();
    fit();
}

QSize ElidedLabel::sizeHint() const
{
    constexpr int rounding = 2; // pixels
    return {fontMetrics().horizontalAdvance(m_line) + rounding, minimumSizeHint().height()};
}

QSize ElidedLabel::minimumSizeHint() const
{
    return {0, QLabel::minimumSizeHint().height()};
}

void ElidedLabel::resizeEvent(QResizeEvent* event)
{
    QLabel::resizeEvent(event);
    fit();
}

void ElidedLabel::fit()
{
    setText(fontMetrics().elidedText(m_line, m_mode, width()));
}
