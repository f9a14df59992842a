#include "app/log/RunBar.h"

#include <QAbstractScrollArea>
#include <QEvent>
#include <QHBoxLayout>
#include <QProgressBar>
#include <QPushButton>

#include <algorithm>

namespace {

/// The word for what avrdude does, in the user's language.
QString textOf(const QString& activity)
{
    static const char* const words[] = {QT_TRANSLATE_NOOP("RunBar", "Writing"), QT_TRANSLATE_NOOP("RunBar", "Reading"),
                                        QT_TRANSLATE_NOOP("RunBar", "Verifying")};
    for (const char* word : words) {
        if (activity == QLatin1String(word))
            return RunBar::tr(word);
    }
    return RunBar::tr("avrdude is working");
}

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

    constexpr int glance = 300; // milliseconds: what is over sooner needs no bar
    m_wait.setInterval(glance);
    m_wait.setSingleShot(true);
    connect(&m_wait, &QTimer::timeout, this, &RunBar::come);
    connect(m_stop, &QPushButton::clicked, this, &RunBar::stopClicked);
    log.viewport()->installEventFilter(this);
}

void RunBar::setRunning(bool isRunning)
{
    m_isRunning = isRunning;
    if (isRunning) {
        setProgress({}, -1);
        if (!isVisible())
            m_wait.start();
        return;
    }
    m_wait.stop();
    QTimer::singleShot(0, this, [this] { // the next of several begins at once
        if (!m_isRunning && isVisible())
            go();
    });
}

void RunBar::setProgress(const QString& activity, int percent)
{
    m_bar->setRange(0, percent < 0 ? 0 : 100);
    m_bar->setValue(percent);
    const QString text = textOf(activity);
    m_bar->setFormat(text + QStringLiteral(" %p%"));
    if (m_bar->accessibleName() != text)
        m_bar->setAccessibleName(text);
}

void RunBar::flash()
{
    constexpr int blink = 200; // milliseconds
    QPalette alarm = palette();
    alarm.setColor(QPalette::Base, alarm.color(QPalette::Highlight));
    alarm.setColor(QPalette::Window, alarm.color(QPalette::Highlight));
    m_bar->setPalette(alarm);
    setPalette(alarm);
    if (!isVisible()) {
        m_stop->hide(); // too short to be pressed, or nothing runs
        place();
        show();
    }
    QTimer::singleShot(blink, this, [this] {
        m_bar->setPalette({});
        setPalette({});
        if (m_stop->isHidden()) {
            hide();
            m_stop->show();
            if (m_isRunning)
                m_wait.start();
        }
    });
}

bool RunBar::eventFilter(QObject* object, QEvent* event)
{
    if (event->type() == QEvent::Resize)
        place();
    return QWidget::eventFilter(object, event);
}

void RunBar::come()
{
    m_stop->show();
    place();
    show();
    raise();
    emit shown(true);
}

void RunBar::go()
{
    if (m_stop->hasFocus())
        m_log.setFocus();
    hide();
    emit shown(false);
}

void RunBar::place()
{
    const QRect text = m_log.viewport()->geometry(); // beside the scroll bar
    setGeometry(text.x(), text.y(), text.width(), height());
}
