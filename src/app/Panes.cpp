#include "app/Panes.h"

#include "app/log/AvrdudeMessage.h"

#include <QEvent>
#include <QScrollArea>
#include <QVBoxLayout>

#include <algorithm>

Panes::Panes(const QVector<QWidget*>& panes, AvrdudeMessage& log, QWidget* parent)
    : QWidget(parent)
    , m_area(new QScrollArea(this))
    , m_panes(new QWidget(m_area))
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
    m_panes->installEventFilter(this);

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
    if (!m_isScrolling) // while they scroll they may want more
        m_needed = neededHeight();
    const int missing = m_needed - height();
    const int spare = std::max(0, height() - std::max(m_needed, m_opened));
    m_log.setFixedHeight(std::max(m_log.leastHeight(), m_logHeight + (missing > 0 ? -missing : spare / 2)));
    const bool isScrolling = missing > m_logHeight - m_log.minimumHeight();
    if (isScrolling != m_isScrolling) {
        m_isScrolling = isScrolling;
        emit scrolling(isScrolling);
    }
}

bool Panes::eventFilter(QObject* object, QEvent* event)
{
    if (event->type() == QEvent::LayoutRequest && m_opened > 0) // the panes need another height than before
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
