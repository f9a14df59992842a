#include "base/ElidedLabel.h"
#include "fuses/FuseMeanings.h"
#include "fuses/FuseRequests.h"
#include "fuses/Fuses.h"
#include "fuses/FusesButtonsView.h"
#include "fuses/FusesBytesView.h"
#include "fuses/SettingsMenu.h"
#include "mcu/description/BytesModel.h"
#include "support/Bench.h"
#include "support/ShownFuses.h"
#include "support/Table.h"

namespace {

/// A byte whose bit 3 is locked and whose bit 4 can be clicked, but not changed by typing; both are 0 in an editor.
FuseByte makeByte(const QString& id, quint32 value)
{
    FuseByte byte {"Name of " + id, id, {}, value, value};
    byte.fuseBits.fill({0, true, "B", 0, 0});
    byte.fuseBits[3].enabled = false;
    byte.fuseBits[4].name = "NOT USED";
    return byte;
}

/// The tab over two bytes.
struct Tab : Bench {
    Tab()
    {
        bytes = {makeByte("lfuse", 0x62), makeByte("lock", 0xFF)};
        tab.rebuild();
    }

    [[nodiscard]] HexField* field() const { return tab.findChild<FusesByteView*>()->value(); } // of the first byte

    FuseBytes& bytes = avrdude.settings().fusesBytes;
    Fuses tab {avrdude, nullptr};
    FusesButtonsView* buttons = tab.findChild<FusesButtonsView*>();
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
        for (const FuseBytes& bytes : {FuseBytes {lock, low, high}, {low, high, lock}, {low, lock, high}}) // lock last
            QCOMPARE(FuseRequests::write(bytes).join(' '), QString("-Ulfuse:w:0x62:m -Uhfuse:w:0x5:m -Ulock:w:0xff:m"));
        QCOMPARE(FuseRequests::write({makeByte("lockbits", 1), low}),
                 QStringList({"-Ulfuse:w:0x62:m", "-Ulockbits:w:0x1:m"}));
        QCOMPARE(FuseRequests::write({low}), QStringList({"-Ulfuse:w:0x62:m", ""}));
        QCOMPARE(FuseRequests::verify({lock, low}), QStringList({"-Ulock:v:0xff:m", "-Ulfuse:v:0x62:m"}));
    }

    void typing_data() { casesFrom("typing.txt", {"keys", "text", "cursor", "value"}); }

    void typing()
    {
        const Tab tab;
        QApplication::clipboard()->setText("11");
        for (const QString& key : cell("keys").split(','))
            QTest::keySequence(tab.field(), QKeySequence(key));
        QTEST(tab.field()->text(), "text");
        QTEST(QString::number(tab.field()->cursorPosition()), "cursor");
        QTEST(QString::number(tab.bytes[0].currentValue, 16), "value");
    }

    void clickingBits()
    {
        const Tab tab;
        QList<quint32> values;
        for (QCheckBox* box : tab.tab.findChild<FusesByteView*>()->fusesBit()) {
            box->click();
            values += tab.bytes[0].currentValue;
        }
        QCOMPARE(values, QList<quint32>({0x63, 0x61, 0x65, 0x65, 0x75, 0x55, 0x15, 0x95})); // bit 3 is locked
        QCOMPARE(tab.field()->text(), QString("95"));
    }

    void workingInTheField()
    {
        Tab tab;
        tab.tab.resize(400, 100); // has to scroll
        tab.tab.show();
        QVERIFY(QTest::qWaitForWindowActive(&tab.tab));
        HexField* field = tab.field();
        QVERIFY(!field->acceptDrops());
        QInputMethodEvent composed;
        composed.setCommitString(QStringLiteral("ｃ")); // as wide as a Chinese character
        QCoreApplication::sendEvent(field, &composed);
        QTest::mouseClick(field, Qt::LeftButton);
        QCOMPARE(field->selectedText(), QString("C2"));
        const auto* scrollBar = tab.tab.findChild<QScrollArea*>()->verticalScrollBar();
        QTest::keyClick(field, Qt::Key_Down);
        QVERIFY(scrollBar->value() > 0);
        QTest::keyClick(field, Qt::Key_Up);
        QCOMPARE(scrollBar->value(), 0);
        QTest::keyClick(field, Qt::Key_Delete);
        QTest::keyClick(field, Qt::Key_Tab);
        QVERIFY(!field->hasFocus());
        QCOMPARE(field->text(), QString("C2")); // the digit is back
    }

    void everyChangeIsExplained()
    {
        Bench bench;
        Fuses fuses(bench.avrdude, nullptr);
        loadMega328P(bench, fuses);
        const auto* low = fuses.findChild<FusesByteView*>();
        const QSize plainSize = low->fusesBit()[5]->sizeHint();
        low->fusesBit()[5]->click();
        const QString changed = m_clock
            + "000010: internal oscillator 8 MHz; start-up 6 clocks, after a reset 14 clocks\n    Factory setting = "
            + m_factoryClock;
        QCOMPARE(low->fusesBit()[0]->toolTip(), changed);
        QVERIFY(low->value()->accessibleDescription().endsWith("\n    CKOUT = 1: off\n" + changed));
        QCOMPARE(low->fusesBit()[5]->sizeHint(), plainSize);
        QVERIFY(low->fusesBit()[5]->font().bold() && !low->fusesBit()[0]->font().bold());
        QTest::keyClicks(low->value(), "62");
        QVERIFY(low->fusesBit()[0]->toolTip().endsWith(m_factoryClock) && !low->fusesBit()[5]->font().bold());
    }

    void meaningsInAnotherLanguage()
    {
        struct : QTranslator {
            QString translate(const char* /*context*/, const char* source, const char* /*comment*/,
                              int /*number*/) const override
            {
                return QHash<QString, QString> {
                    {"Clock source and start-up time", "Takt"},
                    {"start-up %1 clocks, after a reset %2 clocks + %3 ms", "%3 ms + %2 / %1"},
                }
                    .value(source);
            }
            [[nodiscard]] bool isEmpty() const override { return false; }
        } translator;
        QCoreApplication::installTranslator(&translator);
        Bench bench;
        Fuses fuses(bench.avrdude, nullptr);
        loadMega328P(bench, fuses);
        QCOMPARE(fuses.findChild<FusesByteView*>()->fusesBit()[0]->toolTip(),
                 QString("Takt\n    SUT1..0 CKSEL3..0 = 100010: internal oscillator 8 MHz; 65 ms + 14 / 6"));
    }

    void meaningsWithoutAMouse()
    {
        Bench bench;
        Fuses fuses(bench.avrdude, nullptr);
        loadMega328P(bench, fuses);
        QVERIFY(QTest::qWaitForWindowActive(&fuses));
        const auto* low = fuses.findChild<FusesByteView*>();
        QCheckBox* bit = low->fusesBit()[5];
        const auto tip = [low] {
            const auto labels = low->findChildren<QLabel*>();
            const auto isTip = [](const QLabel* label) { return label->isWindow() && label->isVisible(); };
            const auto found = std::find_if(labels.begin(), labels.end(), isTip);
            return found == labels.end() ? QString() : (*found)->text();
        };
        bit->setFocus(Qt::TabFocusReason);
        QTRY_COMPARE(tip(), m_clock + m_factoryClock);
        QTest::keyClick(bit, Qt::Key_Space);
        QVERIFY(tip().contains("Factory setting") && tip() == bit->toolTip());
        QTest::keyClick(bit, Qt::Key_Escape);
        QCOMPARE(tip(), QString());
        low->value()->setFocus(Qt::BacktabFocusReason);
        QTRY_COMPARE(tip(), low->value()->toolTip());
        QTest::mouseClick(bit, Qt::LeftButton);
        QCOMPARE(tip(), QString());
    }

    void meaningsAreThoseOfThePartThatIsShown()
    {
        Bench bench;
        Fuses fuses(bench.avrdude, nullptr);
        loadMega328P(bench, fuses);
        // A profile that was made with another description: what leaves the factory is the present one's.
        FuseByte& byte = bench.avrdude.settings().fusesBytes[0];
        byte.defaultValue = 0xFF;
        byte.fuseBits[0].defaultBitValue = 1;
        fuses.refresh();
        const auto* bit = fuses.findChild<FusesByteView*>()->fusesBit()[0];
        QCOMPARE(bit->accessibleDescription(), m_clock + m_factoryClock);
        QVERIFY(!bit->font().bold());

        fuses.rebuild(); // while the tab is shown
        QVERIFY(!fuses.findChildren<FusesByteView*>().last()->value()->toolTip().isEmpty());

        fuses.hide();
        bench.avrdude.settings().mcuId = "another";
        fuses.rebuild();
        fuses.show(); // only now it is read what is known of it
        QCOMPARE(fuses.findChildren<FusesByteView*>().last()->value()->toolTip(), QString());
    }

    void settingsAndWarnings_data() { casesFrom("meanings.txt", {"mcu", "id", "value", "setting", "warning"}); }

    void settingsAndWarnings()
    {
        Bench bench;
        bench.folder.copy({"mcu/" + cell("mcu") + ".json", "mcu/meanings/fields.json", "mcu/meanings/words.json"});
        BytesModel(bench.avrdude.settings()).load(cell("mcu"));
        FuseMeanings meanings;
        meanings.load(bench.avrdude.settings());
        QStringList changed; // title, cell("setting"), factory cell("setting"), cell("warning")
        for (FuseByte byte : bench.avrdude.settings().fusesBytes) {
            if (byte.id == cell("id"))
                byte.currentValue = cell("value").toUInt(nullptr, 0);
            for (const FuseMeanings::Text& about : meanings.of(byte))
                changed += about.text.contains("Factory setting") ? about.text.split("\n    ") : QStringList();
        }
        QCOMPARE(changed.value(1).left(cell("setting").size()), cell("setting"));
        QCOMPARE(changed.value(3).left(cell("warning").size()), cell("warning"));
        QCOMPARE(changed.value(3).isEmpty(), cell("warning").isEmpty());
    }

    void choosingByMeaning_data() { casesFrom("choices.txt", {"mcu", "byte", "bit", "listed", "chosen", "value"}); }

    void choosingByMeaning()
    {
        Bench bench;
        bench.folder.copy({"mcu/" + cell("mcu") + ".json", "mcu/meanings/fields.json", "mcu/meanings/words.json"});
        Fuses fuses(bench.avrdude, nullptr);
        fuses.loadMcu(cell("mcu"));
        fuses.rebuild();
        fuses.show();
        const FuseBytes& bytes = bench.avrdude.settings().fusesBytes;
        const auto isMeant = [](const FuseByte& byte) { return byte.id == cell("byte"); };
        const auto byte = std::find_if(bytes.begin(), bytes.end(), isMeant);
        const auto* editor = fuses.findChildren<FusesByteView*>()[static_cast<int>(byte - bytes.begin())];
        QCheckBox* bit = editor->fusesBit()[cell("bit").toInt()];
        QContextMenuEvent wanted(QContextMenuEvent::Keyboard, {3, 3}, {3, 3});
        QCoreApplication::sendEvent(bit, &wanted);
        QStringList listed;
        QHash<QString, QAction*> settings; // by their digits
        if (auto* menu = editor->findChild<SettingsMenu*>()) {
            for (QAction* entry : menu->actions()) {
                const auto inGroup = entry->menu() ? entry->menu()->actions() : QList<QAction*> {entry};
                for (QAction* setting : inGroup)
                    settings.insert(setting->text().section('\t', 1), setting);
                const QString group = QString("[%1 %2]").arg(entry->text()).arg(inGroup.size());
                listed += (entry->menu() ? group : entry->text().replace('\t', ' ')) + (entry->isChecked() ? "*" : "");
            }
        }
        QTEST(listed.join(", "), "listed");
        if (!cell("chosen").isEmpty())
            settings.value(cell("chosen"))->trigger();
        QTEST(editor->value()->text() + QString::number(byte->currentValue, 16).toUpper(), "value");
    }

    void aReadingTakesItsOwnFiles()
    {
        Tab tab;
        tab.folder.write("lfuse.hex", "\xFF"); // yesterday's
        tab.folder.write("script", "make lock.hex 0D\nawait go");
        tab.buttons->readButton()->click();
        QTRY_VERIFY(QFile::exists("lock.hex"));
        tab.folder.write("go", "");
        QCOMPARE(
            tab.click(tab.buttons->readButton()), // again, and nothing that was read is lost
            QString("FUSES: Fuse bytes read successfully.\nNot read (the old values are still shown): Name of lfuse"));
        QCOMPARE(tab.requests(), QStringList {"-Ulfuse:r:lfuse.hex:r -Ulock:r:lock.hex:r"});
        QCOMPARE(shownFuses(tab.tab), QString("6205")); // 0D without bit 3, which is locked
    }

    void whatIsNoByteCountsAsNotRead()
    {
        for (const char* script : {"", "make lfuse.hex\nmake lock.hex FF7A"}) { // no files; none, and two bytes
            Tab tab;
            tab.folder.write("script", script);
            QCOMPARE(tab.click(tab.buttons->readButton()).section('|', 0, 0),
                     QString("FUSES: Not read (the old values are still shown): Name of lfuse, Name of lock"));
            QCOMPARE(shownFuses(tab.tab), QString("62E7"));
        }
    }

    void aProfileThatComesDuringAReadingKeepsItsBytes()
    {
        Tab tab;
        SettingsRecord profile = tab.avrdude.settings(); // of another part
        profile.fusesBytes = {makeByte("lfuse", 0xC0)};
        QVERIFY(profile.saveToFile("profile"));
        tab.folder.write("script", "make lfuse.hex 11\nwait 100");
        tab.buttons->readButton()->click();
        QVERIFY(tab.avrdude.settings().loadFromFile("profile"));
        QTRY_VERIFY(tab.isIdle());
        QCOMPARE(tab.boxes.take(), QStringList()); // it is not the chip that was read
        QCOMPARE(tab.bytes[0].currentValue, 0xC0U);
    }

    void aListThatIsNotShownYet()
    {
        Tab tab;
        tab.bytes = {makeByte("fuse", 0x62)}; // while a box keeps it from being shown
        tab.bytes[0].currentValue = 0;
        tab.click(tab.buttons->defaultButton());
        QCOMPARE(shownFuses(tab.tab), QString("62"));
        tab.bytes = {}; // as of parts that serial programming does not reach
        const QString remark = " successfully. + There is no fuse byte here: none was sent.";
        for (const auto& [button, told] : {std::pair(tab.buttons->readButton(), "FUSES: Fuse bytes read%1|"),
                                           {tab.buttons->writeButton(), "Information: Fuse bytes written%1|"},
                                           {tab.buttons->verifyButton(), "FUSES: Fuse bytes verified%1|"},
                                           {tab.buttons->defaultButton(), "FUSES: Fuse bytes set to default values%1"}})
            QCOMPARE(tab.click(button), QString(told).arg(remark));
    }

    void whyThereIsNoByte()
    {
        Tab tab;
        const auto* reason = tab.tab.findChild<FusesBytesView*>()->findChild<QLabel*>();
        QVERIFY(!reason->isVisibleTo(&tab.tab));
        tab.bytes = {};
        for (const auto& [key, text] :
             {std::pair("unreachable", "An ISP programmer does not reach the fuse bytes of this microcontroller."),
              {"unreliable", "avrdude cannot be relied on for the fuse bytes of this microcontroller."},
              {"", "No fuse bytes are loaded. Choose the microcontroller in the first tab."}}) {
            tab.folder.write("mcu/ATmega16.json", R"({"id": "m16", "withoutFuseBytes": "%1"})");
            tab.folder.write("mcu/ATmega16.json", tab.folder.read("mcu/ATmega16.json").replace("%1", key));
            tab.tab.rebuild();
            QVERIFY(reason->isVisibleTo(&tab.tab));
            QCOMPARE(reason->text(), QString(text));
        }
    }

    void whatMayLockOutIsAskedOnce()
    {
        Bench bench;
        Fuses fuses(bench.avrdude, nullptr);
        loadMega328P(bench, fuses);
        const auto* buttons = fuses.findChild<FusesButtonsView*>();
        const auto* legend = fuses.findChild<ElidedLabel*>();
        QCOMPARE(legend->accessibleName(), QString("not read from the chip"));
        const auto editors = fuses.findChildren<FusesByteView*>();
        QTest::keyClicks(editors[1]->value(), "59"); // RSTDISBL
        QTest::keyClicks(editors[3]->value(), "FC"); // locked
        const QString asked =
            "FUSES, by default No: High Fuse: The reset pin becomes an ordinary pin: an ISP or TPI programmer will no "
            "longer be able to reach the chip. The way back: a high-voltage programmer.\nLock Bits: A programmer will "
            "no longer be able to read the chip or write to it. The way back: Erase all. + Do you want to write the "
            "fuse bytes all the same?";
        const QString written = "Information: Fuse bytes written successfully.";
        const auto press = [&] { return bench.click(buttons->writeButton()).section("|-U", 0, 0); };
        QCOMPARE(press(), asked);
        QVERIFY(bench.requests().isEmpty() && legend->isVisible());
        bench.boxes.button = QMessageBox::Yes;
        bench.folder.write("script", "err verification error");
        QCOMPARE(press(), asked + "|AVRDUDE, warning: Verification error.");
        QVERIFY(legend->isVisible());
        bench.folder.write("script", "");
        QCOMPARE(press(), written); // who has said yes is not asked again because of a bad contact
        QVERIFY(!legend->isVisible());
        QCOMPARE(press(), written); // it is on the chip already
        bench.folder.write("script", "make hfuse.hex 99"); // debugWIRE, as the chip says
        bench.click(buttons->readButton());
        QCOMPARE(press(), written);
        editors[1]->fusesBit()[7]->click(); // RSTDISBL again
        QVERIFY(press().startsWith(asked.section(" The way", 0, 0)));
    }

    void editorsOnTheirWayOutLeaveTheListAlone()
    {
        Tab tab;
        tab.tab.show();
        QVERIFY(QTest::qWaitForWindowActive(&tab.tab));
        tab.tab.findChildren<FusesByteView*>().last()->value()->setFocus();
        tab.bytes.removeLast(); // the editor that has the focus, and loses it, stands for this one
        tab.tab.rebuild();
        QTRY_COMPARE(shownFuses(tab.tab), QString("62"));
    }

private:
    /// Shows the fuses of an ATmega328P.
    static void loadMega328P(const Bench& bench, Fuses& fuses)
    {
        bench.folder.copy({"mcu/ATmega328P.json", "mcu/meanings/fields.json", "mcu/meanings/words.json"});
        fuses.loadMcu("ATmega328P");
        fuses.rebuild();
        fuses.show();
    }

    const QString m_clock = "Clock source and start-up time\n    SUT1..0 CKSEL3..0 = ";
    const QString m_factoryClock =
        "100010: internal oscillator 8 MHz; start-up 6 clocks, after a reset 14 clocks + 65 ms";
};

QTEST_MAIN(tst_Fuses)
#include "tst_fuses.moc"
