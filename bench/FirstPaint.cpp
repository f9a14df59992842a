// A plugin that the toolkit loads into any program (QT_QPA_GENERIC_PLUGINS=first-paint): ends it when its main window
// has been painted, and prints the processor time in milliseconds and the peak memory in KiB that it took to get there.

#include <QApplication>
#include <QEvent>
#include <QGenericPlugin>
#include <QMainWindow>

#include <cstdio>
#include <sys/resource.h>
#include <unistd.h>

class FirstPaint : public QObject
{
public:
    bool eventFilter(QObject* object, QEvent* event) override
    {
        // Of the window itself nothing may be left to paint between its children. All of them are painted in the same
        // go, before the event loop turns.
        const auto* widget = event->type() == QEvent::Paint ? qobject_cast<QWidget*>(object) : nullptr;
        if (widget && qobject_cast<QMainWindow*>(widget->window()))
            QMetaObject::invokeMethod(qApp, report, Qt::QueuedConnection);
        return false;
    }

private:
    static void report()
    {
        rusage usage;
        getrusage(RUSAGE_SELF, &usage);
        const auto milliseconds = [](const timeval& time) {
            return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_usec) / 1e3;
        };
        std::printf("%.3f %ld\n", milliseconds(usage.ru_utime) + milliseconds(usage.ru_stime), usage.ru_maxrss);
        std::fflush(stdout);
        _exit(0);
    }
};

class FirstPaintPlugin : public QGenericPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "FirstPaint.json")

public:
    QObject* create(const QString&, const QString&) override
    {
        auto* filter = new FirstPaint;
        qApp->installEventFilter(filter);
        return filter;
    }
};

#include "FirstPaint.moc"
