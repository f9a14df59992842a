#include "support/BoxAnswerer.h"
#include "support/LogCapture.h"
#include "update/UpdateChecker.h"

#include <QDesktopServices>
#include <QNetworkReply>
#include <QTcpServer>
#include <QTcpSocket>
#include <QtTest>

class tst_Update : public QObject
{
    Q_OBJECT

public slots:
    /// Stands in for the system's browser.
    void open(const QUrl& url) { m_opened += url.toString(); }

private slots:
    void initTestCase()
    {
        for (const QString scheme : {"https", "ftp"})
            QDesktopServices::setUrlHandler(scheme, this, "open");
    }

    void answers()
    {
        using Row = std::array<QString, 3>; // the answer, the boxes, and the page
        const QString offer = "Update available: New version %1 available.\n\nOpen download page?";
        const QString failed = "|Error: Could not open the link.";
        for (const auto& [source, told, page] : {
                 Row {"data:,{'version': '5.7', 'url': 'https://a', 'url_linux': 'https://b'}", offer.arg("5.7"),
                      "https://b"},
                 {"data:,{'version': '5.10', 'url': 'https://a', 'url_linux': 1}", offer.arg("5.10"), "https://a"},
                 {"data:,{'version': '5.6.1', 'url': 'https://a'}", offer.arg("5.6.1"), ""}, // declined
                 {"data:,{'version': '6.0-beta', 'url': 'ftp://a'}", offer.arg("6.0-beta") + failed, ""}, // no page
                 {"data:,{'version': '5.7', 'url': ''}", "Error: Download URL is missing in server response.", ""},
                 {"data:,{'version': '5.6', 'url': 'https://a'}", "", ""},
                 {"data:,{'version': '5.5.9', 'url': 'https://a'}", "", ""},
                 {"data:,{'version': 'next', 'url': 'https://a'}", "", ""},
                 {"http://127.0.0.1:1/", "", ""}, // nobody listens
             }) {
            BoxAnswerer boxes;
            boxes.button = told.contains("5.6.1") ? QMessageBox::No : QMessageBox::Yes;
            m_opened.clear();
            const LogCapture log;
            UpdateChecker checker(QString(source).replace('\'', '"'));
            checker.checkForUpdates();
            QVERIFY(checker.findChild<QNetworkReply*>());
            QTRY_VERIFY(!checker.findChild<QNetworkReply*>()); // released in every case
            QCOMPARE(boxes.take().join('|') + m_opened.join('|'), told + page);
            QCOMPARE(log.lines().filter("Update check error: ").size(), source.startsWith("http") ? 1 : 0);
        }
    }

    void closedBeforeTheAnswer()
    {
        const LogCapture log;
        QTcpServer server;
        QVERIFY(server.listen(QHostAddress::LocalHost));
        {
            UpdateChecker checker(QString("http://127.0.0.1:%1/").arg(server.serverPort()));
            checker.checkForUpdates();
            QVERIFY(server.waitForNewConnection(5000));
            server.nextPendingConnection()->write("HTTP/1.0 200 OK\r\n\r\n{\"version\": ");
            QTest::qWait(50);
        }
        QCOMPARE(log.lines(), QStringList());
    }

private:
    QStringList m_opened;
};

QTEST_MAIN(tst_Update)
#include "tst_update.moc"
