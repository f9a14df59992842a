// The whole program with its own main(), which each test starts, looks at while its event loop runs, and ends.

#define main startProgram
#include "app/main.cpp"
#undef main

#include "app/Panes.h"
#include "app/log/AvrdudeMessage.h"
#include "fuses/FusesBytesView.h"
#include "mcu/AttributesView.h"
#include "support/Bench.h"

#include <QtNetwork>
#include <QtTest>
#include <QtWidgets>

using Look = std::function<void()>;
Q_DECLARE_METATYPE(Look)

namespace {

KorvelApp* window; ///< from the time when it is about to be shown
Look look; ///< what to do when it is there

/// Waits for the window, keeps it from being painted, and ends the program after the look.
struct Watcher : QObject {
    bool eventFilter(QObject* object, QEvent* event) override
    {
        if (event->type() != QEvent::Polish || !qobject_cast<KorvelApp*>(object))
            return false;
        window = qobject_cast<KorvelApp*>(object);
        window->setUpdatesEnabled(false);
        QTimer::singleShot(0, window, [] {
            look();
            QCoreApplication::exit();
        });
        return false;
    }
} watcher;

bool isScrolled(Qt::Orientation orientation)
{
    const auto* area = window->centralWidget()->findChild<QScrollArea*>({}, Qt::FindDirectChildrenOnly);
    return (orientation == Qt::Vertical ? area->verticalScrollBar() : area->horizontalScrollBar())->isVisible();
}

void watch()
{
    qApp->installEventFilter(&watcher);
}
Q_COREAPP_STARTUP_FUNCTION(watch)

} // namespace

class tst_Start : public QObject
{
    Q_OBJECT

private slots:
    void afterTheStart_data()
    {
        QTest::addColumn<Look>("check");
        QTest::newRow("title, icon and place") << Look([] {
            QCOMPARE(window->windowTitle(), QString("Korvel " KORVEL_VERSION));
            QVERIFY(!window->windowIcon().isNull());
            QCOMPARE(window->x(), (window->screen()->availableGeometry().width() - window->width()) / 2);
        });
        QTest::newRow("texts are translated")
            << Look([] { QCOMPARE(window->findChild<AttributesView*>()->eraseButton()->text(), QString("All gone")); });
        QTest::newRow("nothing is scrolled at the smallest size") << Look([] {
            window->resize(window->sizeHint());
            QTest::qWait(0);
            QVERIFY(!isScrolled(Qt::Horizontal) && !isScrolled(Qt::Vertical));
        });
        QTest::newRow("the log grows with the window, and gives way in a smaller one before anything scrolls")
            << Look([] {
                   const auto* log = window->findChild<AvrdudeMessage*>();
                   const int needed = window->findChild<Panes*>()->neededHeight();
                   const int opened = std::max(needed, window->height());
                   const auto resize = [](int height) { window->resize(window->width(), height); };
                   resize(opened + 100);
                   QTRY_COMPARE(log->height(), 180 + 50);
                   resize(needed - 50);
                   QTRY_COMPARE(log->height(), 180 - 50);
                   QTRY_VERIFY(!isScrolled(Qt::Vertical));
                   const int fourLines = 4 * QFontMetrics(log->font()).lineSpacing();
                   resize(needed - 200);
                   QTRY_VERIFY(isScrolled(Qt::Vertical));
                   QVERIFY(log->height() >= fourLines && log->height() < 2 * fourLines);
                   resize(opened);
                   QTRY_COMPARE(log->height(), 180);
                   QTRY_VERIFY(!isScrolled(Qt::Vertical));
               });
        QTest::newRow("one scroll bar for many bytes, whatever the way to that size") << Look([] {
            auto* avrdude = window->findChild<Avrdude*>();
            const auto* inner = window->findChild<FusesBytesView*>();
            const auto barOfBytes = [inner] {
                return inner->parentWidget()->height() < inner->minimumSizeHint().height();
            };
            const int needed = window->findChild<Panes*>()->neededHeight();
            BoxAnswerer boxes;
            window->resize(window->width(), needed - 250);
            window->findChild<QTabWidget*>()->setCurrentIndex(1);
            emit avrdude->partChosen("AVR128DA48");
            QTRY_VERIFY(inner->minimumSizeHint().height() > needed / 2); // the editors are there
            QTRY_COMPARE(inner->parentWidget()->height(), inner->minimumSizeHint().height());
            QVERIFY(isScrolled(Qt::Vertical));
            for (const int height : {needed, needed + 1}) // at once
                window->resize(window->width(), height);
            QTRY_COMPARE(window->findChild<AvrdudeMessage*>()->height(), 180);
            QTRY_VERIFY(barOfBytes() && !isScrolled(Qt::Vertical));
        });
        QTest::newRow("a window that fits the screen without its frame alone is made lower") << Look([] {
            const int screen = window->screen()->availableGeometry().height();
            window->resize(520, screen - 1);
            Startup::moveToPointerScreen(*window);
            window->setUpdatesEnabled(true);
            QTRY_COMPARE(window->frameGeometry().height(), screen);
            QCOMPARE(window->y(), 0);
        });
        QTest::newRow("the update check waits for the first painting, and goes to its host") << Look([] {
            QTcpServer proxy;
            proxy.listen(QHostAddress::LocalHost);
            QNetworkProxy::setApplicationProxy({QNetworkProxy::HttpProxy, "127.0.0.1", proxy.serverPort()});
            QTest::qWait(500);
            QVERIFY(!proxy.hasPendingConnections());
            window->setUpdatesEnabled(true);
            window->update();
            QTRY_VERIFY(proxy.hasPendingConnections());
            QTcpSocket* checker = proxy.nextPendingConnection();
            QTRY_VERIFY(checker->canReadLine());
            QCOMPARE(checker->readLine(), QByteArray("CONNECT " KORVEL_UPDATE_HOST ":443 HTTP/1.1\r\n"));
        });
        QTest::newRow("who waits for the first painting is content with that of a child") << Look([] {
            QWidget parent;
            QWidget child(&parent);
            int calls = 0;
            Startup::afterFirstPaint(parent, [&calls] { ++calls; });
            for (int i = 0; i < 2; ++i) {
                QPaintEvent paint(child.rect()); // all that X11 sends where children cover their parent
                QCoreApplication::sendEvent(&child, &paint);
            }
            QTRY_COMPARE(calls, 1);
        });
        QTest::newRow("avrdude hears nothing of OpenGL")
            << Look([] { QTRY_VERIFY(!qEnvironmentVariableIsSet("QT_XCB_GL_INTEGRATION")); });
        QTest::newRow("settings are saved at the end of the session") << Look([] {
            QVERIFY(QFile::remove("save.json"));
            void* arguments[] = {nullptr, window}; // who asks for it is not looked at
            qApp->qt_metacall(QMetaObject::InvokeMetaMethod,
                              qApp->metaObject()->indexOfSignal("commitDataRequest(QSessionManager&)"), arguments);
            QVERIFY(QFile::exists("save.json") && window->isVisible());
        });
    }

    void afterTheStart()
    {
        QFETCH(Look, check);
        look = check;
        const WorkFolder folder;
        folder.write("save.json", R"({"language": "X"})");
        folder.copy({"mcu/AVR128DA48.json"});
        folder.write("Languages/X.json", R"({"Erase all": "All gone"})");
        qputenv("APPIMAGE", QDir::current().filePath("Korvel.AppImage").toUtf8());
        char name[] = "korvel";
        char* arguments[] = {name, nullptr};
        QCOMPARE(startProgram(1, arguments), 0);
    }
};

QTEST_APPLESS_MAIN(tst_Start)
#include "tst_start.moc"
