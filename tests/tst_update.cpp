#include "about/AboutView.h"
#include "about/SocialLinksWidget.h"
#include "base/ProductInfo.h"
#include "support/BoxAnswerer.h"
#include "support/Table.h"
#include "update/UpdateChecker.h"

#include <QtNetwork>

class tst_Update : public QObject
{
    Q_OBJECT

public slots:
    /// Stands in for the system's browser.
    void open(const QUrl& url) { m_opened += url.toString(); }

private slots:
    void initTestCase()
    {
        for (const QString scheme : {"https", "ftp", "file"})
            QDesktopServices::setUrlHandler(scheme, this, "open");
    }

    void aboutTabAndAddresses()
    {
        m_opened.clear();
        SocialLinksWidget corner;
        for (QToolButton* button : corner.findChildren<QToolButton*>())
            button->click();
        const QTemporaryDir folder(QDir::tempPath() + "/a & 'b' %20 XXXXXX");
        const QString guide = folder.filePath("guide.html");
        QVERIFY(!AboutView(nullptr, guide).findChildren<QLabel*>().at(2)->text().contains("file:"));
        QVERIFY(QFile(guide).open(QIODevice::WriteOnly));
        AboutView about(nullptr, guide);
        about.setPalette(QPalette(Qt::black)); // as on a dark desktop
        QVERIFY(about.palette().color(QPalette::Window).lightness() > 200);
        QVERIFY(about.findChild<QTextEdit*>()->isReadOnly());
        about.show();
        QVERIFY(QTest::qWaitForWindowActive(&about));
        auto* links = about.findChildren<QLabel*>().at(2);
        links->setFocus();
        QTest::keyClick(links, Qt::Key_Tab); // the website
        QTest::keyClick(links, Qt::Key_Return);
        QTest::keyClick(links, Qt::Key_Tab);
        QTest::keyClick(links, Qt::Key_Return);
        QCOMPARE(m_opened,
                 QStringList({ProductInfo::website, ProductInfo::telegram, ProductInfo::youtube, ProductInfo::website,
                              QUrl::fromLocalFile(guide).toString()}));
        QCOMPARE(UpdateChecker::defaultSource().toString().remove(KORVEL_UPDATE_HOST),
                 QString("https:///downloads/korvel5/version.json"));
    }

    void answers_data() { casesFrom("updates.txt", {"source", "pressed", "told", "page"}); }

    void answers()
    {
        BoxAnswerer boxes;
        boxes.button = cell("pressed") == "Yes" ? QMessageBox::Yes : QMessageBox::No;
        m_opened.clear();
        if (cell("source").startsWith("http"))
            QTest::ignoreMessage(QtDebugMsg, QRegularExpression("^Update check error: ")); // has to come
        UpdateChecker checker(cell("source").replace("THIS", ProductInfo::version));
        checker.checkForUpdates();
        QVERIFY(checker.findChild<QNetworkReply*>());
        QTRY_VERIFY(!checker.findChild<QNetworkReply*>()); // released in every case
        QCOMPARE(boxes.take().join(", "), cell("told").replace("THIS", ProductInfo::version));
        QTEST(m_opened.join(", "), "page");
    }

    void serversThatCostTooMuch_data()
    {
        QTest::addColumn<QByteArray>("head");
        QTest::addColumn<QByteArray>("rest"); // sent again and again
        const QByteArray answer = R"({"version": "99.0", "url": "https://a"})";
        const QByteArray whole = "Content-Length: " + QByteArray::number(answer.size()) + "\r\n\r\n" + answer;
        QTest::newRow("honest") << "200 OK\r\n" + whole << QByteArray();
        QTest::newRow("elsewhere") << "302 Found\r\nLocation: data:," + answer + "\r\n" + whole << QByteArray();
        QTest::newRow("large") << "200 OK\r\n\r\n" + answer << QByteArray(65536, ' ');
        QTest::newRow("large and whole") << "200 OK\r\nContent-Length: 70000\r\n\r\n" + answer.leftJustified(70000)
                                         << QByteArray();
        QTest::newRow("slow") << "200 OK\r\n\r\n" + answer << QByteArray(" ");
        QTest::newRow("silent") << QByteArray() << QByteArray();
    }

    void serversThatCostTooMuch()
    {
        QFETCH(const QByteArray, head);
        QFETCH(const QByteArray, rest);
        QTcpServer server;
        QVERIFY(server.listen(QHostAddress::LocalHost));
        qint64 sent = 0;
        QTimer again;
        connect(&server, &QTcpServer::newConnection, &again, [&] {
            QTcpSocket* socket = server.nextPendingConnection();
            socket->write(head.isEmpty() ? QByteArray() : "HTTP/1.1 " + head);
            connect(&again, &QTimer::timeout, socket, [&, socket] { sent += socket->write(rest); });
            again.start(10);
        });
        BoxAnswerer boxes;
        boxes.button = QMessageBox::No;
        UpdateChecker checker(QString("http://127.0.0.1:%1/").arg(server.serverPort()));
        checker.setPatience(500);
        checker.checkForUpdates();
        QTRY_VERIFY_WITH_TIMEOUT(!checker.findChild<QNetworkReply*>(), 2000);
        QCOMPARE(boxes.take().size(), QTest::currentDataTag() == QString("honest") ? 1 : 0);
        QVERIFY(sent < 1 << 20); // by far not all that the large one would send
    }

private:
    QStringList m_opened;
};

QTEST_MAIN(tst_Update)
#include "tst_update.moc"
