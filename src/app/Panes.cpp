#include "app/Panes.h"

#include "app/log/AvrdudeMessage.h"

#include <QEvent>
#include <QScrollArea>
#include <QVBoxLayout>

#include <algorithm>

Panes::Panes(const QVector<QWidget*>& panes, QScrollArea& inner, AvrdudeMessage& log, QWidget* parent)
    : QWidget(parent)
    , m_area(new QScrollArea(this))
    , m_panes(new QWidget(m_area))
    , m_inner(inner)
    , m_log(log)
    , m_logHeight(log.minimumHeight())
{
    auto* upper = new QVBoxLayout(m_panes);
    for (QWidget* pane : panes)
        upper->addWidget(pane);
    const QMargins margins = upper->contentsMargins();
    upper->setContentsMargins(margins.left(), margins.top(), margins.right(), 0);
    m_area->setFrameShape(QFrame::NoFrame);
    m_area->setFocusPolicy(Qt::NoFocus);
    m_area->setWidgetResizable(true);
    m_area->setWidget(m_panes);
    for (QObject* watched : {static_cast<QObject*>(m_panes), static_cast<QObject*>(inner.viewport()),
                             static_cast<QObject*>(inner.widget())})
        watched->installEventFilter(this);

    auto* lower = new QHBoxLayout;
    lower->setContentsMargins(margins.left(), 0, margins.right(), 0);
    lower->addWidget(&log);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, margins.bottom());
    layout->setSpacing(upper->spacing());
    layout->addWidget(m_area);
    layout->addLayout(lower);
    constexpr QSize smallest(320, 240); // pixels; the log's present height does not count
    setMinimumSize(smallest);
}

QSize Panes::sizeHint() const
{
    // With a font that is a little larger than usual the window opens as large as usual.
    const int given = m_logHeight / 6;
    return {m_panes->minimumSizeHint().width(), neededHeight() - given};
}

int Panes::neededHeight() const
{
    return m_panes->minimumSizeHint().height() + layout()->spacing() + m_logHeight
        + layout()->contentsMargins().bottom();
}

void Panes::share()
{
    const int missing = neededHeight() - height();
    const int spare = std::max(0, height() - std::max(neededHeight(), m_opened));
    m_log.setFixedHeight(std::max(m_log.leastHeight(), m_logHeight + (missing > 0 ? -missing : spare / 2)));
    // Where the panes scroll, what scrolls in them is as high as it wants: one bar is enough.
    const bool isScrolling = missing > m_logHeight - m_log.minimumHeight();
    const int lacking = m_inner.widget()->minimumSizeHint().height() - m_inner.viewport()->height();
    m_panes->setMinimumHeight(isScrolling && m_inner.isVisible()
                                  ? std::max(m_panes->minimumSizeHint().height(), m_panes->height() + lacking)
                                  : 0);
}

bool Panes::eventFilter(QObject* object, QEvent* event)
{
    const QEvent::Type type = event->type();
    const bool isOfInner = type == QEvent::Resize || type == QEvent::Show || type == QEvent::Hide;
    if (m_opened > 0 && (type == QEvent::LayoutRequest || (isOfInner && object == m_inner.viewport())))
        share();
    return QWidget::eventFilter(object, event);
}

void Panes::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    if (m_opened > 0)
        share();
}

void Panes::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    if (m_opened == 0)
        m_opened = height();
    share();
}
