#include "about/AboutView.h"
#include "about/SocialLinksWidget.h"
#include "app/ProductInfo.h"
#include "support/BoxAnswerer.h"
#include "support/LogCapture.h"
#include "update/UpdateChecker.h"

#include <QDate>
#include <QDesktopServices>
#include <QLabel>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTextEdit>
#include <QToolButton>
#include <QtTest>

/// Stands in for the system's browser.
class Browser : public QObject
{
    Q_OBJECT

public:
    Browser() { QDesktopServices::setUrlHandler("https", this, "open"); }
    ~Browser() override { QDesktopServices::unsetUrlHandler("https"); }

    QStringList opened;

public slots:
    void open(const QUrl& url) { opened += url.toString(); }
};

class tst_Update : public QObject
{
    Q_OBJECT

private slots:
    void answers()
    {
        struct Row {
            QByteArray response;
            QString boxes, opened;
            QMessageBox::StandardButton button = QMessageBox::Yes;
        };
        const auto offer = [](const char* version) {
            return QString("Update available: New version %1 available.\n\nOpen download page?").arg(version);
        };
        const QByteArray ok = "HTTP/1.0 200 OK\r\n\r\n";
        const auto document = [&ok](const char* version, const char* url = "https://a", const char* linuxUrl = "") {
            const QByteArray json =
                QByteArray("{'version': '") + version + "', 'url': '" + url + "', 'url_linux': '" + linuxUrl + "'}";
            return ok + QByteArray(json).replace('\'', '"');
        };
        for (const Row& row : {
                 Row {document("5.7", "https://a", "https://b"), offer("5.7"), "https://b"},
                 {document("5.6.1"), offer("5.6.1"), "", QMessageBox::No},
                 {document("5.10"), offer("5.10"), "https://a"},
                 {document("6.0-beta"), offer("6.0-beta"), "https://a"},
                 {document("5.6"), "", ""},
                 {document("5.5.9"), "", ""},
                 {document("next"), "", ""},
                 {ok + "{}", "", ""},
                 {ok + "{\"version\": \"5.7\", \"url\": \"https://a\", \"url_linux\": 1}", offer("5.7"), "https://a"},
                 {ok + "[garbage", "", ""},
                 {document("5.7", ""), "Error: Download URL is missing in server response.", ""},
                 {document("5.7", ":"), offer("5.7") + "|Error: Could not open the link.", ""},
                 {"HTTP/1.0 404 Not Found\r\n\r\n{\"version\": \"5.7\"}", "", ""},
                 {"", "", ""}, // the connection closes without an answer
             }) {
            QTcpServer server;
            QVERIFY(server.listen(QHostAddress::LocalHost));
            connect(&server, &QTcpServer::newConnection, this, [&server, &row] {
                QTcpSocket* socket = server.nextPendingConnection();
                connect(socket, &QTcpSocket::readyRead, socket, [socket, &row] {
                    QVERIFY(socket->readAll().startsWith("GET /version.json "));
                    socket->write(row.response);
                    socket->disconnectFromHost();
                });
            });
            BoxAnswerer boxes;
            boxes.button = row.button;
            Browser browser;
            const LogCapture log;
            UpdateChecker checker(QString("http://127.0.0.1:%1/version.json").arg(server.serverPort()));
            checker.checkForUpdates();
            const QPointer<QNetworkReply> reply = checker.findChild<QNetworkReply*>();
            QVERIFY(reply);
            QTRY_VERIFY(!reply); // released in every case
            QCOMPARE(boxes.take().join('|'), row.boxes);
            QCOMPARE(browser.opened.join('|'), row.opened);
            const bool failed = !row.response.startsWith(ok);
            QCOMPARE(log.lines().filter("Update check error: ").size(), failed ? 1 : 0);
        }
    }

    void noAnswer()
    {
        const LogCapture log;
        {
            QTcpServer server; // accepts, and never ends its answer
            QVERIFY(server.listen(QHostAddress::LocalHost));
            UpdateChecker checker(QString("http://127.0.0.1:%1/").arg(server.serverPort()));
            checker.checkForUpdates();
            QVERIFY(server.waitForNewConnection(5000));
            server.nextPendingConnection()->write("HTTP/1.0 200 OK\r\n\r\n{\"version\": ");
            QTest::qWait(50);
        }
        QCOMPARE(log.lines(), QStringList());
        UpdateChecker refused(QUrl("http://127.0.0.1:1/"));
        refused.checkForUpdates();
        QTRY_COMPARE(log.lines().filter("Update check error: ").size(), 1);
        QCOMPARE(UpdateChecker::defaultSource().toString(),
                 "https://" + ProductInfo::updateHost + "/downloads/korvel5/version.json");
    }

    void about()
    {
        const AboutView view;
        const auto labels = view.findChildren<QLabel*>();
        QCOMPARE(labels.first()->text(), QString("Korvel  5.6"));
        QCOMPARE(labels.last()->text(), QString("2026 - %1").arg(QDate::currentDate().year()));
        QVERIFY(labels.at(2)->openExternalLinks() && labels.at(2)->text().contains("Linux<br>Terms of use: free"));
        const QStringList history = view.findChild<QTextEdit*>()->toPlainText().split('\n');
        QVERIFY(history.size() == 35 && view.findChild<QTextEdit*>()->isReadOnly());
        QCOMPARE(history.mid(3, 3), QStringList({"- Fixed minor UI issues", "", "v5.5 - 19.03.2026 "}));

        Browser browser;
        const SocialLinksWidget links;
        QStringList toolTips;
        for (QToolButton* button : links.findChildren<QToolButton*>()) {
            QVERIFY(!button->icon().pixmap(20).isNull());
            toolTips += button->toolTip();
            button->click();
        }
        QCOMPARE(toolTips, QStringList({"Website", "Telegram", "YouTube"}));
        QCOMPARE(browser.opened, QStringList({ProductInfo::website, ProductInfo::telegram, ProductInfo::youtube}));
    }
};

QTEST_MAIN(tst_Update)
#include "tst_update.moc"
