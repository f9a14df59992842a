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

    void aWritingTellsOfItsVerification()
    {
        for (const auto& [file, begin, told] : {std::tuple("a.hex", "verifying fl", "\nFLASH verified successfully."),
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

    void theTooltipIsTheWholePath()
    {
        PathField field;
        field.setText("<b>a  b</b>.hex"); // no markup, and every blank
        QHelpEvent hover(QEvent::ToolTip, {3, 3}, {3, 3});
        QCoreApplication::sendEvent(&field, &hover);
        QTextDocument shown;
        shown.setHtml(field.toolTip());
        QCOMPARE(shown.toPlainText(), QDir::toNativeSeparators(QDir().absoluteFilePath("<b>a  b</b>.hex")));
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
