#include "fuses/FuseRequests.h"
#include "fuses/Fuses.h"
#include "fuses/FusesButtonsView.h"
#include "fuses/FusesByteView.h"
#include "support/Bench.h"

#include <QCheckBox>
#include <QClipboard>
#include <QGroupBox>
#include <QLineEdit>
#include <QtTest>

namespace {

/// A byte of eight free bits named B0 to B7, all of them with @p value's.
FuseByte makeByte(const QString& id, quint32 value)
{
    FuseByte byte;
    byte.name = id.toUpper();
    byte.id = id;
    byte.currentValue = byte.defaultValue = value;
    for (unsigned i = 0; i < 8; ++i)
        byte.fuseBits[i] = {int(i), true, QString("B%1").arg(i), (value >> i) & 1U, (value >> i) & 1U};
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

    /// What the editors show, joined.
    QString values() const
    {
        QString texts;
        for (const FusesByteView* editor : fuses.findChildren<FusesByteView*>())
            texts += editor->value()->text();
        return texts;
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
        for (const FuseBytes& bytes : {FuseBytes {lock, low, high}, {low, high, lock}, {low, lock, high}})
            QCOMPARE(FuseRequests::write(bytes),
                     QStringList({"-Ulfuse:w:0x62:m", "-Uhfuse:w:0x5:m", "-Ulock:w:0xff:m"}));
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
        const Tab tab({byte});
        const auto* view = tab.fuses.findChild<FusesByteView*>();
        QCOMPARE(view->findChild<QGroupBox*>()->title(), QString("LFUSE ( lfuse )"));
        QVERIFY(!view->fusesBit().at(3)->isEnabled() && view->fusesBit().at(5)->text() == "B5");
        for (QCheckBox* box : view->fusesBit())
            box->click();
        QCOMPARE(tab.bytes[0].currentValue, 0x08U);
        QCOMPARE(tab.values(), QString("08"));
        view->fusesBit().at(4)->click();
        view->fusesBit().at(5)->click();
        for (const auto& [keys, shown] : {std::pair("x", "38"), {"00", "18"}}) {
            view->value()->setCursorPosition(0);
            QTest::keyClicks(view->value(), keys);
            QCOMPARE(tab.values(), QString(shown));
        }
        QCOMPARE(tab.bytes[0].fuseBits[4].currentBitValue, 1U);
    }

    void typing()
    {
        const int ctrl = Qt::ControlModifier;
        for (const auto& [what, cursor, keys, shown, cursorAfter, value] :
             {std::tuple("two digits and one too many", 0, QVector<int> {'F', '3', '9'}, "F3", 2, 0xF3U),
              {"at the end", 2, {'0'}, "62", 2, 0x62},
              {"selected", -1, {'0'}, "02", 1, 0x02},
              {"Ctrl", 0, {ctrl | 'C', ctrl | 'A'}, "CA", 2, 0xCA},
              {"paste and letters", 0, {ctrl | 'V', 'G', ' '}, "62", 0, 0x62},
              {"Backspace leaves the byte", 2, {Qt::Key_Backspace}, "6", 1, 0x62},
              {"Backspace and a digit", 2, {Qt::Key_Backspace, '9'}, "69", 2, 0x69},
              {"Delete and a digit", 0, {Qt::Key_Delete, 'A'}, "A2", 1, 0xA2},
              {"keys that move", 2, {Qt::Key_Home, Qt::Key_Right, '7'}, "67", 2, 0x67}}) {
            QApplication::clipboard()->setText("11");
            const Tab tab({makeByte("lfuse", 0x62)});
            const auto* view = tab.fuses.findChild<FusesByteView*>();
            QLineEdit* field = view->value();
            cursor < 0 ? field->selectAll() : field->setCursorPosition(cursor);
            for (const int key : keys)
                QTest::keyClick(field, Qt::Key(key & ~ctrl), Qt::KeyboardModifiers(key & ctrl));
            QVERIFY2(field->text() == shown && field->cursorPosition() == cursorAfter, what);
            QVERIFY2(tab.bytes[0].currentValue == value, what);
            for (unsigned i = 0; i < 8; ++i) {
                const quint32 bit = tab.bytes[0].fuseBits[i].currentBitValue;
                QVERIFY2(bit == (value >> i & 1U) && view->fusesBit().at(int(i))->isChecked() == !bit, what);
            }
        }
    }

    void buttons()
    {
        FuseByte locked = makeByte("lock", 0xFF);
        locked.fuseBits[7].enabled = false;
        Tab tab({makeByte("lfuse", 0x62), locked});
        const auto* view = tab.fuses.findChild<FusesButtonsView*>();
        tab.folder.write("lfuse.hex", "\x0D");
        tab.folder.write("lock.hex", "\x03");
        QCOMPARE(tab.click(view->readButton()),
                 QString("FUSES: Fuse bytes read successfully.|-Ulfuse:r:lfuse.hex:r -Ulock:r:lock.hex:r"));
        QCOMPARE(tab.avrdude.settings().fileNamesReading, QStringList({"lfuse.hex", "lock.hex"}));
        QCOMPARE(tab.values(), QString("0D83")); // bit 7 is locked
        QCOMPARE(tab.bytes[0].fuseBits[1].currentBitValue, 0U);
        QVERIFY(QFile::remove("lock.hex")); // fewer results than bytes: the rest stays
        tab.folder.write("lfuse.hex", "\x0E");
        tab.click(view->readButton());
        QCOMPARE(tab.values(), QString("0E83"));

        QCOMPARE(tab.click(view->defaultButton()), QString("FUSES: Fuse bytes set to default values successfully."));
        QCOMPARE(tab.values(), QString("62FF"));
    }
};

QTEST_MAIN(tst_Fuses)
#include "tst_fuses.moc"
