#include "fuses/FuseRequests.h"
#include "fuses/Fuses.h"
#include "fuses/FusesButtonsView.h"
#include "fuses/FusesByteView.h"
#include "support/Bench.h"

#include <QCheckBox>
#include <QClipboard>
#include <QLineEdit>
#include <QtTest>

namespace {

/// A byte whose bit 3 is locked and whose bit 4 can be clicked, but not typed away; both are 0 in an editor.
FuseByte makeByte(const QString& id, quint32 value)
{
    FuseByte byte {"Name", id, {}, value, value};
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
        for (const auto& [keys, result] : {std::pair(QVector<int> {'F', '3', '9'}, "E3 2 e3 14"), // one too many
                                           {{Qt::SHIFT + Qt::Key_End, '0'}, "02 1 2 f5"}, // instead of a selection
                                           {{Qt::CTRL + 'V', 'G', ' ', Qt::CTRL + 'C', Qt::CTRL + 'A'}, "C2 2 c2 35"},
                                           {{Qt::Key_End, Qt::Key_Backspace}, "6 1 62 95"}, // leaves the byte alone
                                           {{Qt::Key_Delete, 'A', Qt::Key_Left, Qt::Key_Right, '7'}, "A7 2 a7 50"}}) {
            Bench bench;
            FuseBytes& bytes = bench.avrdude.settings().fusesBytes;
            bytes = {makeByte("lfuse", 0x62)};
            Fuses fuses(bench.avrdude, nullptr);
            fuses.rebuild();
            const auto* editor = fuses.findChild<FusesByteView*>();
            for (const int key : keys)
                QTest::keySequence(editor->value(), key);
            const QString typed = QString("%1 %2 ").arg(editor->value()->text()).arg(editor->value()->cursorPosition());
            const QString value = QString::number(bytes[0].currentValue, 16);
            for (QCheckBox* box : editor->fusesBit())
                box->click();
            QCOMPARE(typed + value + ' ' + QString::number(bytes[0].currentValue, 16), QString(result));
        }
    }

    void readingAndDefaults()
    {
        Bench bench;
        bench.avrdude.settings().fusesBytes = {makeByte("lfuse", 0x62), makeByte("lock", 0xFF)};
        Fuses fuses(bench.avrdude, nullptr);
        fuses.rebuild();
        const auto* buttons = fuses.findChild<FusesButtonsView*>();
        QString shown;
        bench.folder.write("lfuse.hex", "\x0D"); // and no file for the lock byte, which stays
        for (QPushButton* button : {buttons->readButton(), buttons->defaultButton()}) {
            bench.click(button);
            for (const FusesByteView* editor : fuses.findChildren<FusesByteView*>())
                shown += editor->value()->text();
        }
        QCOMPARE(shown, QString("05E762E7"));
    }
};

QTEST_MAIN(tst_Fuses)
#include "tst_fuses.moc"
