#include "about/AboutView.h"
#include "about/SocialLinksWidget.h"
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
        for (const QString scheme : {"https", "ftp"})
            QDesktopServices::setUrlHandler(scheme, this, "open");
    }

    void aboutTabAndAddresses()
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
        UpdateChecker checker(cell("source"));
        checker.checkForUpdates();
        QVERIFY(checker.findChild<QNetworkReply*>());
        QTRY_VERIFY(!checker.findChild<QNetworkReply*>()); // released in every case
        QTEST(boxes.take().join(", "), "told");
        QTEST(m_opened.join(", "), "page");
    }

private:
    QStringList m_opened;
};

QTEST_MAIN(tst_Update)
#include "tst_update.moc"
