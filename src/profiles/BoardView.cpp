#include "profiles/BoardView.h"

#include "base/ElidedLabel.h"

#include <QAccessible>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

constexpr int markSize = 40; // pixels, on a screen of 96 dpi
constexpr double textScale = 1.8; // of the window's text

/// A green circle with a tick, or a red square with a cross: two that nobody takes for each other, colours apart.
QPixmap markFor(BoardView::Verdict verdict, const QWidget& widget)
{
    const double ratio = widget.devicePixelRatioF();
    QPixmap pixmap(QSize(markSize, markSize) * ratio);
    pixmap.setDevicePixelRatio(ratio);
    pixmap.fill(Qt::transparent);
    if (verdict == BoardView::Verdict::Pending)
        return pixmap;
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(markSize / 20.0, markSize / 20.0);
    painter.setPen(Qt::NoPen);
    const bool isGood = verdict == BoardView::Verdict::Good;
    painter.setBrush(isGood ? QColor(0x1b, 0x7f, 0x3b) : QColor(0xb3, 0x26, 0x1e));
    if (isGood)
        painter.drawEllipse(QRectF(0, 0, 20, 20));
    else
        painter.drawRect(QRectF(1, 1, 18, 18));
    painter.setPen(QPen(Qt::white, 3, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    if (isGood) {
        painter.drawPolyline(QPolygonF({{5, 10.5}, {8.5, 14}, {15, 6.5}}));
    } else {
        painter.drawLine(QPointF(6, 6), QPointF(14, 14));
        painter.drawLine(QPointF(14, 6), QPointF(6, 14));
    }
    return pixmap;
}

} // namespace

BoardView::BoardView(QWidget* parent)
    : QWidget(parent)
    , m_line(new ElidedLabel(Qt::ElideMiddle, this))
    , m_last(new QWidget(this))
    , m_mark(new QLabel(m_last))
    , m_text(new ElidedLabel(Qt::ElideRight, m_last))
    , m_counts(new QLabel(m_last))
    , m_reset(new QPushButton(tr("Set to zero"), m_last))
{
    QFont large = font();
    large.setPointSizeF(large.pointSizeF() * textScale);
    large.setBold(true);
    m_text->setFont(large);
    m_text->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);

    auto* counts = new QHBoxLayout;
    counts->addWidget(m_counts);
    counts->addStretch();
    counts->addWidget(m_reset);
    auto* texts = new QVBoxLayout;
    texts->setSpacing(2);
    texts->addWidget(m_text);
    texts->addLayout(counts);
    auto* last = new QHBoxLayout(m_last);
    last->setContentsMargins(0, 0, 0, 0);
    last->addWidget(m_mark);
    last->addLayout(texts, 1);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_line);
    layout->addWidget(m_last);
    m_last->hide();
}

void BoardView::showBoard(Verdict verdict, const QString& text, const QString& counts)
{
    m_mark->setPixmap(markFor(verdict, *this));
    m_text->showLine(text);
    showCounts(counts);
    if (m_last->isHidden()) {
        m_last->show();
        emit grew(m_last->sizeHint().height() + layout()->spacing());
    }
    if (verdict == Verdict::Pending)
        return;
    QAccessibleEvent event(m_text, QAccessible::Alert); // spoken, wherever the focus is
    QAccessible::updateAccessibility(&event);
}

void BoardView::showCounts(const QString& counts)
{
    m_counts->setText(counts);
}

void BoardView::clear()
{
    m_last->hide();
}
