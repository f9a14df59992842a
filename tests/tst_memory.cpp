#include "memory/Eeprom.h"
#include "memory/EepromView.h"
#include "memory/Flash.h"
#include "memory/FlashView.h"
#include "support/Bench.h"
#include "support/Table.h"

namespace {

struct Panels : Bench {
    FlashView flashView;
    EepromView eepromView;
    Flash flash {flashView, avrdude};
    Eeprom eeprom {eepromView, avrdude};
    SettingsRecord& settings = avrdude.settings();
};

} // namespace

class tst_Memory : public QObject
{
    Q_OBJECT

private slots:
    void formats_data() { casesFrom("formats.txt", {"path", "flash", "eeprom"}); }

    void formats()
    {
        const Panels panels;
        const QString path = cell("path");
        panels.flashView.writePath()->setText(path);
        QCOMPARE(panels.settings.cmdFlashWrite, QStringList({"-U", "flash:w:" + path + ":" + cell("flash")}));
        panels.eepromView.writePath()->setText(path);
        QCOMPARE(panels.settings.cmdEepromWrite, QStringList({"-U", "eeprom:w:" + path + ":" + cell("eeprom")}));
    }

    void buttonsNeedAPath_data() { casesFrom("buttons.txt", {"written", "read", "enabled"}); }

    void buttonsNeedAPath()
    {
        const Panels panels;
        const EepromView& view = panels.eepromView;
        for (const QString& path : cell("written").split(','))
            view.writePath()->setText(path);
        for (const QString& path : cell("read").split(','))
            view.readPath()->setText(path);
        QString enabled = "%1 %2 %3 %4, %5 %6";
        for (const bool is :
             {view.writeButton()->isEnabled(), view.writeVerifyButton()->isEnabled(), view.readButton()->isEnabled(),
              view.readVerifyButton()->isEnabled(), panels.settings.eepromEnable, panels.settings.flashEnable})
            enabled = enabled.arg(is ? "on" : "off");
        QCOMPARE(enabled, cell("enabled"));
    }

    void filesThatDoNotFit_data() { casesFrom("sizes.txt", {"file", "content", "written", "verified", "read"}); }

    void filesThatDoNotFit()
    {
        Panels panels;
        panels.folder.write("mcu/ATmega16.json", R"({"id": "m16", "flash": 4})"); // and no word of the EEPROM's size
        panels.folder.write(cell("file"), cell("content").toUtf8());
        panels.flashView.writePath()->setText(cell("file"));
        panels.flashView.readPath()->setText(cell("file"));
        QCOMPARE(panels.click(panels.flashView.writeButton()).replace("|", ", "), cell("written"));
        QCOMPARE(panels.click(panels.flashView.writeVerifyButton()).replace("|", ", "), cell("verified"));
        QCOMPARE(panels.click(panels.flashView.readButton()).replace("|", ", "), cell("read"));
    }

    void onlyWhereTheChipIsErasedFirstIsAsked()
    {
        const QString question = "FLASH, by default No: Line 1 is not Intel HEX. + The chip would be erased for "
                                 "nothing.\nDo you want to go on all the same?";
        for (const auto& [part, arguments, answer, told] : {std::tuple("m16", "-F", QMessageBox::No, question),
                                                            {"m16", "-V -D", QMessageBox::No, "-U"},
                                                            {"x128a1", "-D -e", QMessageBox::No, question},
                                                            {"x128a1", "", QMessageBox::No, "-U"},
                                                            {"m16", "", QMessageBox::Yes, question}}) {
            Panels panels;
            panels.boxes.button = answer;
            panels.settings.mcuId = part;
            panels.settings.arguments = arguments;
            for (PathField* path : {panels.flashView.writePath(), panels.eepromView.writePath()})
                path->setText("a.hex");
            panels.folder.write("a.hex", "garbage");
            panels.folder.write("script", "err verification error");
            const QString writing = panels.click(panels.flashView.writeButton());
            QVERIFY2(writing.startsWith(told == question ? question : "AVRDUDE, warning: "), qPrintable(writing));
            QCOMPARE(writing.contains("flash:w:"), told != question || answer == QMessageBox::Yes);
            for (QPushButton* button : {panels.flashView.writeVerifyButton(), panels.eepromView.writeButton()})
                QVERIFY(panels.click(button).startsWith("AVRDUDE, warning: "));
        }
    }

    void aFileOfTheUsersOwnIsNotReplacedUnasked()
    {
        Panels panels;
        const MemoryView& view = panels.flashView;
        PathField* path = view.readPath();
        QTest::keyClicks(path, "mine.bin");
        const auto asked = [&] {
            const QString told = panels.click(view.readButton());
            const QString name = QDir::toNativeSeparators(QDir().absoluteFilePath("mine.bin"));
            return told.startsWith("FLASH, by default No: Reading would replace this file: + " + name
                                   + "\n8 bytes, changed on ")
                && told.contains("flash:r:") == (panels.boxes.button == QMessageBox::Yes);
        };
        QVERIFY(!asked()); // there is none
        panels.folder.write("mine.bin", "");
        QVERIFY(!asked());
        panels.folder.write("mine.bin", "firmware");
        QVERIFY(asked());
        panels.boxes.button = QMessageBox::Yes;
        panels.folder.write("script", "make mine.bin 0102030405060708");
        QVERIFY(asked());
        QVERIFY(!asked()); // a reading wrote it
        QTest::qWait(20); // for a later time of change
        panels.folder.write("mine.bin", "my notes");
        QVERIFY(asked());
        panels.folder.write("mine.bin", "my notes");
        path->setFile(QDir().absoluteFilePath("mine.bin")); // as in the dialog
        QVERIFY(!asked());
    }

    void aReadingThatBroughtNothing()
    {
        Panels panels;
        panels.folder.write("mcu/ATmega16.json", R"({"id": "m16", "flash": 4})");
        const QString read = "FLASH, warning: FLASH read successfully. + The file is ";
        const QString empty = read + "empty: the chip is blank or locked, or the disk is full.";
        for (const auto& [file, script, told] :
             {std::tuple("a.bin", "", read + "not there: avrdude has not written it."),
              {"a.bin", "make a.bin -", empty},
              {"a.hex", "make a.hex 3A30303030303030314646", empty},
              {"a.bin", "make a.bin FF", "FLASH: FLASH read successfully."}}) {
            panels.flashView.readPath()->setText(file);
            panels.folder.write("script", script);
            QCOMPARE(panels.click(panels.flashView.readButton()).section('|', 0, 0), told);
        }
    }

    void aWritingTellsOfItsVerification()
    {
        for (const auto& [file, begin, told] :
             {std::tuple("a.hex", "verifying fl", "\nFLASH verified successfully."),
              {"b.hex", "Writing 5000 bytes to flash\n5000 bytes of flash verified fl",
               "\nFLASH verified successfully."},
              {"c.hex", "Writing 5000 bytes to flash\n5000 bytes of eeprom verified fl", ""},
              {"verifying flash.hex", "fl", ""}}) {
            Panels panels;
            panels.flashView.writePath()->setText(file);
            panels.begin(begin, "err ash", panels.flashView.writeButton());
            panels.log.moveCursor(QTextCursor::Start);
            panels.finish();
            QCOMPARE(panels.boxes.wait(), QStringList {QString("FLASH: FLASH written successfully.") + told});
        }
    }

    void choosingAFile_data() { casesFrom("paths.txt", {"chosen", "shown", "folder"}); }

    void choosingAFile()
    {
        const QFileInfo app(QCoreApplication::applicationFilePath());
        const auto path = [&app](const char* column) {
            const QString inApp = cell(column).replace("{app}", app.path()).replace("{name}", app.fileName());
            return QString(inApp).replace("{tests}", TEST_FOLDER);
        };
        PathField field;
        field.setFile(path("chosen"));
        QCOMPARE(field.text(), path("shown"));
        QCOMPARE(field.startFolder(), path("folder"));
    }

    void browse()
    {
        const Panels panels;
        const QFileInfo hex(DATA_FOLDER "/demo/blink.hex");
        QStringList seen; // the folder that the dialog opens in, and what the field holds after it
        for (const char* end : {"accept", "reject"}) {
            const QObject row; // which the timer ends with
            QTimer::singleShot(0, &row, [&seen, &hex, end] {
                auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
                seen += dialog->directory().path();
                dialog->selectFile(hex.filePath());
                QMetaObject::invokeMethod(dialog, end, Qt::QueuedConnection);
            });
            panels.flashView.findChild<QPushButton*>()->click();
            seen += panels.settings.flashWrite;
        }
        QCOMPARE(seen,
                 QStringList({QCoreApplication::applicationDirPath(), hex.filePath(), hex.path(), hex.filePath()}));
    }

    void aDroppedFileStaysWhereItIs()
    {
        const Panels panels;
        const QFileInfo app(QCoreApplication::applicationFilePath());
        QMimeData dragged;
        dragged.setUrls({QUrl::fromLocalFile(app.filePath())});
        QDragEnterEvent enter(QPoint(3, 3), Qt::CopyAction, &dragged, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(panels.flashView.writePath(), &enter); // refused, no drop would follow
        QDropEvent drop(QPointF(3, 3), Qt::MoveAction | Qt::CopyAction, &dragged, Qt::LeftButton, Qt::ShiftModifier);
        QCoreApplication::sendEvent(panels.flashView.writePath(), &drop);
        QCOMPARE(drop.dropAction(), Qt::CopyAction);
        QCOMPARE(panels.settings.flashWrite, app.fileName());
    }

    void theTooltipTellsOfTheFile()
    {
        const Panels panels;
        panels.folder.write("mcu/ATmega16.json", R"({"id": "m16", "flash": 64})");
        panels.folder.write("a.hex", ":0200000001FEFF\n:00000001FF\n");
        const QString facts = "\n2 bytes of data, 3.1 % of the memory\nchanged on ";
        for (const auto& [path, known] : {std::pair("b.hex", QString()), {"a.hex", facts}}) {
            panels.flashView.writePath()->setText(path);
            QHelpEvent hover(QEvent::ToolTip, {3, 3}, {3, 3});
            QCoreApplication::sendEvent(panels.flashView.writePath(), &hover);
            const QString shown = panels.flashView.writePath()->toolTip();
            const QString expected = QDir::toNativeSeparators(QDir().absoluteFilePath(path)) + known;
            QCOMPARE(shown.left(expected.size()), expected);
            QCOMPARE(shown == expected, known.isEmpty());
        }
    }

    void pasting_data() { casesFrom("pastes.txt", {"copied", "pasted"}); }

    void pasting()
    {
        PathField field;
        QApplication::clipboard()->setText(cell("copied"));
        QTest::keySequence(&field, QKeySequence::Paste);
        for (QAction* action : field.createStandardContextMenu()->actions())
            if (action->text().contains("Paste"))
                action->trigger();
        QCOMPARE(field.text(), cell("pasted") + cell("pasted"));
    }
};

QTEST_MAIN(tst_Memory)
#include "tst_memory.moc"
