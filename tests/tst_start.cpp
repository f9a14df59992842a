// The whole program with its own main(), looked at while its event loop runs.

#define main startProgram
#include "app/main.cpp"
#undef main

#include "mcu/AttributesView.h"
#include "support/WorkFolder.h"

#include <QtNetwork>
#include <QtTest>
#include <QtWidgets>

namespace {

QTcpServer* proxy; ///< sees where the check for a newer version goes
std::function<void()> look; ///< what to do when the window is there

void prepare()
{
    proxy = new QTcpServer(qApp);
    proxy->listen(QHostAddress::LocalHost);
    QNetworkProxy::setApplicationProxy({QNetworkProxy::HttpProxy, "127.0.0.1", proxy->serverPort()});
    QTimer::singleShot(0, qApp, [] {
        look();
        QCoreApplication::exit();
    });
}
Q_COREAPP_STARTUP_FUNCTION(prepare)

} // namespace

class tst_Start : public QObject
{
    Q_OBJECT

private slots:
    void everythingIsInItsPlace()
    {
        const WorkFolder folder;
        qputenv("APPIMAGE", QDir::current().filePath("Korvel.AppImage").toUtf8());
        folder.write("save.json", R"({"language": "X"})");
        folder.write("Languages/X.json", R"({"Erase all": "All gone"})");
        look = [] {
            KorvelApp* window = nullptr;
            for (QWidget* widget : QApplication::topLevelWidgets())
                window = window ? window : qobject_cast<KorvelApp*>(widget);
            QVERIFY(window->windowTitle() == "Korvel " KORVEL_VERSION && !window->windowIcon().isNull());
            QCOMPARE(window->x(), (window->screen()->availableGeometry().width() - window->width()) / 2);
            QCOMPARE(window->findChild<AttributesView*>()->eraseButton()->text(), QString("All gone"));
            window->resize(window->sizeHint());
            QTest::qWait(0);
            const auto* central = qobject_cast<QScrollArea*>(window->centralWidget());
            QVERIFY(!central->horizontalScrollBar()->isVisible() && !central->verticalScrollBar()->isVisible());

            QWidget tall;
            tall.resize(300, 5000);
            Startup::moveToPointerScreen(tall);
            QVERIFY(tall.height() < window->screen()->availableGeometry().height());

            QVERIFY(proxy->hasPendingConnections() || proxy->waitForNewConnection(5000));
            QTcpSocket* checker = proxy->nextPendingConnection();
            QVERIFY(checker->bytesAvailable() > 0 || checker->waitForReadyRead(5000));
            QCOMPARE(checker->readLine(), QByteArray("CONNECT " KORVEL_UPDATE_HOST ":443 HTTP/1.1\r\n"));

            // What the session manager asks for at the end of a session, and whenever it notes how things stand.
            QVERIFY(QFile::remove("save.json"));
            void* arguments[] = {nullptr, window};
            qApp->qt_metacall(QMetaObject::InvokeMetaMethod,
                              qApp->metaObject()->indexOfSignal("commitDataRequest(QSessionManager&)"), arguments);
            QVERIFY(QFile::exists("save.json") && window->isVisible());
        };
        char name[] = "korvel";
        char* arguments[] = {name, nullptr};
        QCOMPARE(startProgram(1, arguments), 0);
    }
};

QTEST_APPLESS_MAIN(tst_Start)
#include "tst_start.moc"
