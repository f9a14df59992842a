#include "fuses/FuseRequests.h"
#include "fuses/Fuses.h"
#include "fuses/FusesButtonsView.h"
#include "fuses/FusesByteView.h"
#include "fuses/HexField.h"
#include "support/Bench.h"

#include <QCheckBox>
#include <QClipboard>
#include <QLineEdit>
#include <QtTest>

namespace {

/// A byte whose bit 3 is locked and whose bit 4 can be clicked, but not typed away; both are 0 in an editor.
FuseByte makeByte(const QString& id, quint32 value)
{
    FuseByte byte {"Name of " + id, id, {}, value, value};
    byte.fuseBits.fill({0, true, "B", 0, 0});
    byte.fuseBits[3].enabled = false;
    byte.fuseBits[4].name = "NOT USED";
    return byte;
}

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
            QCOMPARE(FuseRequests::write(bytes).join(' '), QString("-Ulfuse:w:0x62:m -Uhfuse:w:0x5:m -Ulock:w:0xff:m"));
        QCOMPARE(FuseRequests::write({low}), QStringList({"-Ulfuse:w:0x62:m", ""}));
        QCOMPARE(FuseRequests::verify({lock, low}), QStringList({"-Ulock:v:0xff:m", "-Ulfuse:v:0x62:m"}));
    }

    void editing()
    {
        QApplication::clipboard()->setText("11");
        // The text, where the cursor is, the byte, and the byte after a click on each of the bits.
        for (const auto& [keys, result] : {std::pair("F,3,9", "E3 2 e3 14"), // one too many
                                           {"Shift+End,0", "02 1 2 f5"}, // instead of a selection
                                           {"Ctrl+V,G,Space,Ctrl+C,Ctrl+A", "C2 2 c2 35"},
                                           {"End,Backspace", "6 1 62 95"}, // leaves the byte alone
                                           {"Home,Shift+End,Del,E,4", "E4 2 e4 13"},
                                           {"Del,A,Left,Right,7", "A7 2 a7 50"}}) {
            Bench bench;
            FuseBytes& bytes = bench.avrdude.settings().fusesBytes;
            bytes = {makeByte("lfuse", 0x62)};
            Fuses fuses(bench.avrdude, nullptr);
            fuses.rebuild();
            const auto* editor = fuses.findChild<FusesByteView*>();
            for (const QString& key : QString(keys).split(','))
                QTest::keySequence(editor->value(), QKeySequence(key));
            const QString typed = QString("%1 %2 ").arg(editor->value()->text()).arg(editor->value()->cursorPosition());
            const QString value = QString::number(bytes[0].currentValue, 16);
            for (QCheckBox* box : editor->fusesBit())
                box->click();
            QCOMPARE(typed + value + ' ' + QString::number(bytes[0].currentValue, 16), QString(result));
            QInputMethodEvent composed;
            composed.setCommitString("c");
            QCoreApplication::sendEvent(editor->value(), &composed);
            QTest::mouseClick(editor->value(), Qt::LeftButton);
            QCOMPARE(editor->value()->selectedText().size(), 2);
            QTest::keyClick(editor->value(), Qt::Key_Delete);
            QFocusEvent leaving(QEvent::FocusOut);
            QCoreApplication::sendEvent(editor->value(), &leaving);
            QCOMPARE(editor->value()->text(),
                     QString::number(bytes[0].currentValue, 16).toUpper().rightJustified(2, '0'));
        }
    }

    void readingAndDefaults()
    {
        Bench bench;
        bench.avrdude.settings().fusesBytes = {makeByte("lfuse", 0x62), makeByte("lock", 0xFF)};
        Fuses fuses(bench.avrdude, nullptr);
        fuses.rebuild();
        const auto* buttons = fuses.findChild<FusesButtonsView*>();
        const auto shown = [&fuses] {
            QString values;
            for (const FusesByteView* editor : fuses.findChildren<FusesByteView*>())
                values += editor->value()->text();
            return values;
        };
        bench.folder.write("lfuse.hex", "\xFF"); // yesterday's
        bench.folder.write("script", "make lock.hex 0D\nwait 100");
        QTimer::singleShot(50, buttons->readButton(), &QPushButton::click); // takes nothing away
        QCOMPARE(bench.click(buttons->readButton()),
                 QString("FUSES: Fuse bytes read successfully.\nNot read: Name of lfuse"
                         "|-Ulfuse:r:lfuse.hex:r -Ulock:r:lock.hex:r"));
        QCOMPARE(shown(), QString("6205"));
        bench.click(buttons->defaultButton());
        QCOMPARE(shown(), QString("62E7"));

        bench.folder.write("script", "");
        QCOMPARE(bench.click(buttons->readButton()).section('|', 0, 0),
                 QString("FUSES: Not read: Name of lfuse, Name of lock"));

        // A profile comes before a reading ends.
        QVERIFY(bench.avrdude.settings().saveToFile("profile"));
        bench.folder.write("script", "make lfuse.hex C0\nmake lock.hex C0\nwait 100");
        buttons->readButton()->click();
        QVERIFY(bench.avrdude.settings().loadFromFile("profile"));
        QTRY_VERIFY(bench.isIdle());
        QCOMPARE(shown() + bench.boxes.take().join(""), QString("62E7"));
        QCOMPARE(bench.click(buttons->readButton()).section('|', 0, 0),
                 QString("FUSES: Fuse bytes read successfully."));
    }
};

QTEST_MAIN(tst_Fuses)
#include "tst_fuses.moc"
