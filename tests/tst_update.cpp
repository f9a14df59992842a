#include "about/AboutView.h"
#include "about/SocialLinksWidget.h"
#include "support/BoxAnswerer.h"
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
        for (const QString scheme : {"https", "ftp"})
            QDesktopServices::setUrlHandler(scheme, this, "open");
    }

    void linksAndHistoryInTheAboutTab()
    {
        m_opened.clear();
        SocialLinksWidget corner;
        for (QToolButton* button : corner.findChildren<QToolButton*>())
            button->click();
        AboutView about;
        about.setPalette(QPalette(Qt::black)); // as on a dark desktop
        QVERIFY(about.palette().color(QPalette::Window).lightness() > 200);
        QVERIFY(about.findChild<QTextEdit*>()->isReadOnly());
        int links = 0;
        for (const QLabel* label : about.findChildren<QLabel*>())
            links += label->openExternalLinks() && label->text().contains("<a href=\"https://korvel.example\"") ? 1 : 0;
        QCOMPARE(links, 1);
        const QString host = "korvel.example";
        QCOMPARE(m_opened, QStringList({"https://" + host, "https://telegram." + host, "https://youtube." + host}));
    }

    void answers()
    {
        QCOMPARE(UpdateChecker::defaultSource().toString().remove(KORVEL_UPDATE_HOST),
                 QString("https:///downloads/korvel5/version.json"));
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
                 {"http://127.0.0.1:1/", "", ""}, // nobody listens
             }) {
            BoxAnswerer boxes;
            boxes.button = told.contains("5.6.1") ? QMessageBox::No : QMessageBox::Yes;
            m_opened.clear();
            if (source.startsWith("http"))
                QTest::ignoreMessage(QtDebugMsg, QRegularExpression("^Update check error: ")); // has to come
            UpdateChecker checker(QString(source).replace('\'', '"'));
            checker.checkForUpdates();
            QVERIFY(checker.findChild<QNetworkReply*>());
            QTRY_VERIFY(!checker.findChild<QNetworkReply*>()); // released in every case
            QCOMPARE(boxes.take().join('|') + m_opened.join('|'), told + page);
        }
    }

private:
    QStringList m_opened;
};

QTEST_MAIN(tst_Update)
#include "tst_update.moc"
