#include "app/log/RunBar.h"

#include <QAbstractScrollArea>
#include <QEvent>
#include <QHBoxLayout>
#include <QProgressBar>
#include <QPushButton>
#include <QTimer>

#include <algorithm>

namespace {

constexpr int glance = 300; // milliseconds: what is over sooner needs no bar

} // namespace

RunBar::RunBar(QAbstractScrollArea& log)
    : QWidget(&log)
    , m_log(log)
    , m_bar(new QProgressBar(this))
    , m_stop(new QPushButton(tr("Stop"), this))
{
    setAutoFillBackground(true);
    m_stop->setFocusPolicy(Qt::TabFocus); // a click leaves the focus where it was
    m_bar->setAlignment(Qt::AlignCenter);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(2);
    layout->addWidget(m_bar);
    layout->addWidget(m_stop);
    constexpr int thin = 18; // pixels, which a line of text takes
    const int thickness = std::max(thin, fontMetrics().height() + 2);
    m_bar->setFixedHeight(thickness);
    m_stop->setFixedHeight(thickness);
    setFixedHeight(thickness);
    hide();
    connect(m_stop, &QPushButton::clicked, this, [this] {
        m_stop->setEnabled(false); // asked for
        emit stopClicked();
    });
    log.installEventFilter(this);
}

void RunBar::setRunning(bool isRunning)
{
    m_isRunning = isRunning;
    m_stop->setEnabled(true);
    setProgress(tr("avrdude is working"), 0);
    m_bar->setRange(0, isRunning ? 0 : 1); // busy until avrdude tells how far it is
    if (!isRunning) {
        hide();
        emit shown(false);
        return;
    }
    QTimer::singleShot(glance, this, [this] {
        if (!m_isRunning)
            return;
        place();
        show();
        raise();
        emit shown(true);
    });
}

void RunBar::setProgress(const QString& activity, int percent)
{
    m_bar->setRange(0, 100);
    m_bar->setValue(percent);
    m_bar->setFormat(activity + QStringLiteral(" %p%"));
    m_bar->setAccessibleName(activity);
}

void RunBar::flash()
{
    constexpr int blink = 200; // milliseconds
    QPalette alarm = palette();
    alarm.setColor(QPalette::Base, alarm.color(QPalette::Highlight));
    alarm.setColor(QPalette::Window, alarm.color(QPalette::Highlight));
    m_bar->setPalette(alarm);
    setPalette(alarm);
    QTimer::singleShot(blink, this, [this] {
        m_bar->setPalette({});
        setPalette({});
    });
}

bool RunBar::eventFilter(QObject* object, QEvent* event)
{
    if (event->type() == QEvent::Resize)
        place();
    return QWidget::eventFilter(object, event);
}

void RunBar::place()
{
    const QRect text = m_log.viewport()->geometry(); // beside the scroll bar
    setGeometry(text.x(), text.y(), text.width(), height());
}
