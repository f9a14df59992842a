#include "fuses/FuseRequests.h"
#include "fuses/Fuses.h"
#include "fuses/FusesButtonsView.h"
#include "fuses/FusesByteView.h"
#include "support/Bench.h"

#include <QCheckBox>
#include <QClipboard>
#include <QLineEdit>
#include <QPushButton>
#include <QtTest>

namespace {

/// A byte of eight free bits named B0 to B7, all of them with @p value's.
FuseByte makeByte(const QString& id, quint32 value)
{
    FuseByte byte;
    byte.name = id.toUpper();
    byte.id = id;
    byte.currentValue = byte.defaultValue = value;
    for (int i = 0; i < 8; ++i)
        byte.fuseBits[static_cast<std::size_t>(i)] = {i, true, QString("B%1").arg(i), (value >> i) & 1U,
                                                      (value >> i) & 1U};
    return byte;
}

/// The Fuses tab on bytes of the test's choice.
struct Tab : Bench {
    explicit Tab(const FuseBytes& list)
    {
        bytes = list;
        fuses.rebuild();
        fuses.show();
    }

    FusesByteView* editor(int i) const { return fuses.findChildren<FusesByteView*>().at(i); }

    /// Clicks, waits for the box, and returns it and what avrdude was asked for.
    QString click(QPushButton* (FusesButtonsView::*button)() const)
    {
        (fuses.findChild<FusesButtonsView*>()->*button)()->click();
        const QString box = boxes.wait().join('|');
        return box + (folder.runs().isEmpty() ? "" : ' ' + folder.runs().constLast().mid(7).join('|'));
    }

    FuseBytes& bytes = avrdude.settings().fusesBytes;
    Fuses fuses {avrdude, nullptr};
};

} // namespace

class tst_Fuses : public QObject
{
    Q_OBJECT

private slots:
    void requests()
    {
        const FuseByte low = makeByte("lfuse", 0x62);
        const FuseByte high = makeByte("hfuse", 5);
        const FuseByte lock = makeByte("lock", 0xFF);
        const QStringList written {"-Ulfuse:w:0x62:m", "-Uhfuse:w:0x5:m", "-Ulock:w:0xff:m"};
        for (const FuseBytes& bytes : {FuseBytes {lock, low, high}, {low, high, lock}, {low, lock, high}})
            QCOMPARE(FuseRequests::write(bytes), written);
        QCOMPARE(FuseRequests::write({low}), QStringList({"-Ulfuse:w:0x62:m", ""}));
        QCOMPARE(FuseRequests::write({lock, low, lock}),
                 QStringList({"-Ulfuse:w:0x62:m", "-Ulock:w:0xff:m-Ulock:w:0xff:m"}));
        QCOMPARE(FuseRequests::write({}), QStringList {""});
        QCOMPARE(FuseRequests::verify({lock, low}), QStringList({"-Ulock:v:0xff:m", "-Ulfuse:v:0x62:m"}));
        QCOMPARE(FuseRequests::read({lock, low}), QStringList({"-Ulock:r:lock.hex:r", "-Ulfuse:r:lfuse.hex:r"}));
        QVERIFY(FuseRequests::verify({}).isEmpty() && FuseRequests::read({}).isEmpty());
    }

    void boxes()
    {
        FuseByte byte = makeByte("lfuse", 0xFF);
        byte.fuseBits[3].enabled = false;
        byte.fuseBits[4].name = "NOT USED"; // not typed away, but free to be clicked
        Tab tab({byte});
        const FusesByteView* view = tab.editor(0);
        QVERIFY(!view->fusesBit().at(3)->isEnabled() && view->fusesBit().at(5)->text() == "B5");
        for (int i = 0; i < 8; ++i)
            view->fusesBit().at(i)->click();
        QCOMPARE(tab.bytes[0].currentValue, 0x08U);
        QCOMPARE(view->value()->text(), QString("08"));
        view->fusesBit().at(4)->click();
        QTest::keyClicks(view->value(), "x"); // no digit: nothing
        view->value()->setCursorPosition(0);
        QTest::keyClicks(view->value(), "00");
        QCOMPARE(view->value()->text(), QString("18"));
        QCOMPARE(tab.bytes[0].fuseBits[4].currentBitValue, 1U);
    }

    void typing_data()
    {
        QTest::addColumn<int>("cursor"); // -1: all selected
        QTest::addColumn<QVector<int>>("keys");
        QTest::addColumn<QString>("shown");
        QTest::addColumn<int>("cursorAfter");
        QTest::addColumn<uint>("value");
        const int ctrl = Qt::ControlModifier;
        QTest::newRow("two digits and one too many") << 0 << QVector<int> {'F', '3', '9'} << "F3" << 2 << 0xF3U;
        QTest::newRow("at the end") << 2 << QVector<int> {'0'} << "62" << 2 << 0x62U;
        QTest::newRow("selected") << -1 << QVector<int> {'0'} << "02" << 1 << 0x02U;
        QTest::newRow("Ctrl") << 0 << QVector<int> {ctrl | 'C', ctrl | 'A'} << "CA" << 2 << 0xCAU;
        QTest::newRow("paste and letters") << 0 << QVector<int> {ctrl | 'V', 'G', ' '} << "62" << 0 << 0x62U;
        QTest::newRow("Backspace leaves the byte") << 2 << QVector<int> {Qt::Key_Backspace} << "6" << 1 << 0x62U;
        QTest::newRow("Backspace and a digit") << 2 << QVector<int> {Qt::Key_Backspace, '9'} << "69" << 2 << 0x69U;
        QTest::newRow("Delete and a digit") << 0 << QVector<int> {Qt::Key_Delete, 'A'} << "A2" << 1 << 0xA2U;
        QTest::newRow("keys that move") << 2 << QVector<int> {Qt::Key_Home, Qt::Key_Right, '7'} << "67" << 2 << 0x67U;
    }

    void typing()
    {
        QFETCH(int, cursor);
        QFETCH(QVector<int>, keys);
        QApplication::clipboard()->setText("11");
        Tab tab({makeByte("lfuse", 0x62)});
        QLineEdit* field = tab.editor(0)->value();
        if (cursor < 0)
            field->selectAll();
        else
            field->setCursorPosition(cursor);
        for (const int key : qAsConst(keys))
            QTest::keyClick(field, static_cast<Qt::Key>(key & ~Qt::ControlModifier),
                            Qt::KeyboardModifiers(key & Qt::ControlModifier));
        QTEST(field->text(), "shown");
        QTEST(field->cursorPosition(), "cursorAfter");
        QTEST(tab.bytes[0].currentValue, "value");
        for (int i = 0; i < 8; ++i) {
            QCOMPARE(tab.bytes[0].fuseBits[static_cast<std::size_t>(i)].currentBitValue,
                     (tab.bytes[0].currentValue >> i) & 1U);
            QCOMPARE(tab.editor(0)->fusesBit().at(i)->isChecked(), ((tab.bytes[0].currentValue >> i) & 1U) == 0);
        }
    }

    void buttons()
    {
        FuseByte locked = makeByte("lock", 0xFF);
        locked.fuseBits[7].enabled = false;
        Tab tab({makeByte("lfuse", 0x62), locked});
        QCOMPARE(tab.click(&FusesButtonsView::writeButton),
                 QString("Information: Fuse bytes written successfully. -Ulfuse:w:0x62:m|-Ulock:w:0xff:m"));
        QCOMPARE(tab.click(&FusesButtonsView::verifyButton),
                 QString("FUSES: Fuse bytes verified successfully. -Ulfuse:v:0x62:m|-Ulock:v:0xff:m"));

        tab.folder.write("lfuse.hex", "\x0D");
        tab.folder.write("lock.hex", "\x03");
        QCOMPARE(tab.click(&FusesButtonsView::readButton),
                 QString("FUSES: Fuse bytes read successfully. -Ulfuse:r:lfuse.hex:r|-Ulock:r:lock.hex:r"));
        QCOMPARE(tab.avrdude.settings().fileNamesReading, QStringList({"lfuse.hex", "lock.hex"}));
        QCOMPARE(tab.editor(0)->value()->text() + tab.editor(1)->value()->text(), QString("0D83")); // bit 7 is locked
        QCOMPARE(tab.bytes[0].fuseBits[1].currentBitValue, 0U);
        QVERIFY(QFile::remove("lock.hex")); // fewer results than bytes: the rest stays
        tab.folder.write("lfuse.hex", "\x0E");
        tab.click(&FusesButtonsView::readButton);
        QCOMPARE(tab.editor(0)->value()->text() + tab.editor(1)->value()->text(), QString("0E83"));

        QVERIFY(tab.click(&FusesButtonsView::defaultButton).startsWith("FUSES: Fuse bytes set to default values succ"));
        QCOMPARE(tab.editor(0)->value()->text() + tab.editor(1)->value()->text(), QString("62FF"));
    }
};

QTEST_MAIN(tst_Fuses)
#include "tst_fuses.moc"
