#include "app/Startup.h"

#include "app/KorvelApp.h"
#include "base/JsonFile.h"
#include "base/ProductInfo.h"
#include "base/Toolkit.h"

#include <QApplication>
#include <QCursor>
#include <QDebug>
#include <QJsonObject>
#include <QScreen>
#include <QStyle>
#include <QTimer>

#include <algorithm>
#include <utility>

#ifdef Q_OS_UNIX
#include <QSocketNotifier>

#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>
#endif

namespace {

/// Waits for the first painting of the window that owns it, and goes then. Asks all widgets: of the window itself
/// nothing may be left to paint between its children.
class FirstPaint : public QObject
{
public:
    FirstPaint(QWidget& window, std::function<void()> then)
        : QObject(&window)
        , m_then(std::move(then))
    {
        qApp->installEventFilter(this);
    }

    bool eventFilter(QObject* object, QEvent* event) override
    {
        const auto* widget = event->type() == QEvent::Paint ? qobject_cast<QWidget*>(object) : nullptr;
        if (widget && widget->window() == parent()) {
            qApp->removeEventFilter(this);
            constexpr int pause = 100; // milliseconds, in which the rest is painted and the first click is taken
            QTimer::singleShot(pause, this, [this] {
                m_then();
                deleteLater();
            });
        }
        return false;
    }

private:
    const std::function<void()> m_then;
};

/// Brings all of @p window with its frame onto its screen: how large the frame is is known once the window is shown.
void bringFrameIntoSight(QWidget& window)
{
    const QRect area = window.screen()->availableGeometry();
    const int excess = window.frameGeometry().height() - area.height();
    if (excess > 0)
        window.resize(window.width(), window.height() - excess);
    const QRect frame = window.frameGeometry();
    if (frame.bottom() > area.bottom())
        window.move(frame.left(), area.bottom() + 1 - frame.height());
}

/// The main window while it is shown, else null.
KorvelApp* mainWindow()
{
    const auto windows = QApplication::topLevelWidgets();
    for (QWidget* widget : windows) {
        auto* window = qobject_cast<KorvelApp*>(widget);
        if (window && window->isVisible())
            return window;
    }
    return nullptr;
}

#ifdef Q_OS_UNIX

/// Closes the main window and ends the event loops, those of open boxes first.
void endProgram()
{
    if (KorvelApp* window = mainWindow())
        window->closeUnwatched();
    QCoreApplication::exit();
}

int signalPipe[2]; // what is written into the second end, by a signal's handler, comes out of the first

void onSignal(int)
{
    const int error = errno;
    const char mark = 0;
    [[maybe_unused]] const auto written = ::write(signalPipe[1], &mark, 1);
    errno = error;
}

void closeOnSignals()
{
    if (::pipe(signalPipe) != 0)
        return;
    for (const int end : signalPipe)
        ::fcntl(end, F_SETFD, FD_CLOEXEC); // none of avrdude's business
    auto* notifier = new QSocketNotifier(signalPipe[0], QSocketNotifier::Read, qApp);
    QObject::connect(notifier, &QSocketNotifier::activated, qApp, [] {
        // A signal that came while the window was being built, under a box that tells of damaged settings, stays in the
        // pipe: the event loop that runs when the window is there sees it again.
        if (mainWindow()) {
            char mark = 0;
            [[maybe_unused]] const auto count = ::read(signalPipe[0], &mark, 1);
        }
        endProgram();
    });
    for (const int number : {SIGTERM, SIGINT, SIGHUP}) {
        struct sigaction action = {};
        ::sigaction(number, nullptr, &action);
        if (number == SIGHUP && action.sa_handler == SIG_IGN)
            continue; // started by nohup
        action.sa_handler = onSignal;
        action.sa_flags = SA_RESTART;
        ::sigaction(number, &action, nullptr);
    }
}

#else

void closeOnSignals() { }

#endif

} // namespace

QString Startup::language()
{
    QString fallback = ProductInfo::defaultLanguage;
    const JsonFile file = JsonFile::read(ProductInfo::settingsFile);
    if (!file.wasRead()) {
        qDebug().noquote() << "Config file not found, using default language:" << fallback;
        return fallback;
    }
    if (!file.isObject()) {
        qDebug().noquote() << "Config parse error:" << file.error;
        return fallback;
    }
    const QJsonObject settings = file.document.object();
    const auto language = settings.constFind(QLatin1String("language"));
    return language == settings.constEnd() ? fallback : language->toString();
}

void Startup::closeOnRequest()
{
    closeOnSignals();
    // The session manager asks for the data before it ends the session, and also when it only notes how things stand.
    // It ends the program itself.
    Toolkit::keepWindowsOnCommit();
    QObject::connect(qApp, &QGuiApplication::commitDataRequest, qApp, [] {
        if (KorvelApp* window = mainWindow())
            window->saveSettings(KorvelApp::Witness::Nobody);
    });
}

void Startup::moveToPointerScreen(QWidget& window)
{
    const QScreen* screen = QGuiApplication::screenAt(QCursor::pos());
    if (!screen)
        screen = QGuiApplication::primaryScreen();
    const QRect area = screen->availableGeometry();
    if (window.height() > area.height()) {
        const int scrollBar = window.style()->pixelMetric(QStyle::PM_ScrollBarExtent);
        window.resize(std::min(window.width() + scrollBar, area.width()), area.height());
    }
    window.move(area.left() + (area.width() - window.width()) / 2, area.top() + (area.height() - window.height()) / 2);
    afterFirstPaint(window, [&window] { bringFrameIntoSight(window); });
}

void Startup::leaveOutOpenGl()
{
    static constexpr char choice[] = "QT_XCB_GL_INTEGRATION"; // read when the first window is made
    if (qEnvironmentVariableIsSet(choice))
        return;
    qputenv(choice, "none");
    // None of avrdude's business, nor of a browser's. An event loop turns once the window, or a box before it, is
    // there.
    QTimer::singleShot(0, qApp, [] { qunsetenv(choice); });
}

void Startup::afterFirstPaint(QWidget& window, std::function<void()> then)
{
    new FirstPaint(window, std::move(then)); // the window's
}
