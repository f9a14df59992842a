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
        QFETCH(QString, path);
        QFETCH(QString, flash);
        QFETCH(QString, eeprom);
        const Panels panels;
        panels.flashView.writePath()->setText(path);
        QCOMPARE(panels.settings.cmdFlashWrite, QStringList({"-U", "flash:w:" + path + ":" + flash}));
        panels.eepromView.writePath()->setText(path);
        QCOMPARE(panels.settings.cmdEepromWrite, QStringList({"-U", "eeprom:w:" + path + ":" + eeprom}));
    }

    void buttonsNeedAPath()
    {
        const Panels panels;
        const EepromView& view = panels.eepromView;
        const QString none = "off off off off, profiles off off";
        for (const auto& [written, read, expected] : {std::tuple("", "", none),
                                                      {"a.eep", "", QString("on on off off, profiles on off")},
                                                      {"", "b.eep", QString("off off on on, profiles off off")},
                                                      {"", "", none}}) {
            view.writePath()->setText(written);
            view.readPath()->setText(read);
            QString enabled = "%1 %2 %3 %4, profiles %5 %6"; // may write the EEPROM, may write the flash
            for (const bool is : {view.writeButton()->isEnabled(), view.writeVerifyButton()->isEnabled(),
                                  view.readButton()->isEnabled(), view.readVerifyButton()->isEnabled(),
                                  panels.settings.eepromEnable, panels.settings.flashEnable})
                enabled = enabled.arg(is ? "on" : "off");
            QCOMPARE(enabled, expected);
        }
    }

    void filesThatDoNotFit()
    {
        Panels panels;
        panels.folder.write("mcu/ATmega16.json", R"({"id": "m16", "flash": 4})"); // and no word of the EEPROM's size
        panels.folder.write("fits.bin", "1234");
        panels.folder.write("large.bin", "12345");
        panels.folder.write("large.hex", "12345"); // holds addresses: avrdude has the say
        const QString box = "FLASH: The file has 5 bytes, the memory only 4.";
        const QString done = "FLASH: FLASH %1 successfully.|-U flash:%2";
        for (const auto& [file, written, verified] :
             {std::array {QString("fits.bin"), done.arg("written", "w:fits.bin:r"),
                          done.arg("verified", "v:fits.bin:r")},
              {"large.hex", done.arg("written", "w:large.hex:i"), done.arg("verified", "v:large.hex:i")},
              {"large.bin", box, box}}) { // and avrdude is not started
            panels.flashView.writePath()->setText(file);
            QCOMPARE(panels.click(panels.flashView.writeButton()), written);
            QCOMPARE(panels.click(panels.flashView.writeVerifyButton()), verified);
        }
        panels.flashView.readPath()->setText("large.bin"); // is to be replaced
        QCOMPARE(panels.click(panels.flashView.readButton()), done.arg("read", "r:large.bin:r"));
    }

    void browse()
    {
        const Panels panels;
        const QFileInfo app(QCoreApplication::applicationFilePath()); // as good as a firmware beside the application
        const QFileInfo hex(DATA_FOLDER "/demo/blink.hex");
        QStringList seen; // the folder that the dialog opens in, and what the field holds after it
        for (const QString& chosen : {app.filePath(), hex.filePath(), QString()}) { // the last is cancelled
            QTimer::singleShot(0, this, [&seen, chosen] {
                auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
                seen += dialog->directory().path();
                dialog->selectFile(chosen);
                QMetaObject::invokeMethod(dialog, chosen.isEmpty() ? "reject" : "accept", Qt::QueuedConnection);
            });
            panels.flashView.findChild<QPushButton*>()->click();
            seen += panels.settings.flashWrite;
        }
        QCOMPARE(seen,
                 QStringList({app.path(), app.fileName(), app.path(), hex.filePath(), hex.path(), hex.filePath()}));
    }

    void droppingAndHovering()
    {
        const Panels panels;
        const QFileInfo app(QCoreApplication::applicationFilePath());
        QMimeData dragged;
        dragged.setUrls({QUrl::fromLocalFile(app.filePath())});
        QDragEnterEvent enter(QPoint(3, 3), Qt::CopyAction, &dragged, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(panels.flashView.writePath(), &enter); // refused, no drop would follow
        QDropEvent drop(QPointF(3, 3), Qt::MoveAction | Qt::CopyAction, &dragged, Qt::LeftButton, Qt::ShiftModifier);
        QCoreApplication::sendEvent(panels.flashView.writePath(), &drop);
        QCOMPARE(drop.dropAction(), Qt::CopyAction); // the file stays where it is
        QCOMPARE(panels.settings.flashWrite, app.fileName());
        panels.flashView.writePath()->setText("<b>a  b</b>.hex");
        QHelpEvent hover(QEvent::ToolTip, {3, 3}, {3, 3}); // the whole path: no markup, every blank
        QCoreApplication::sendEvent(panels.flashView.writePath(), &hover);
        QTextDocument shown;
        shown.setHtml(panels.flashView.writePath()->toolTip());
        QCOMPARE(shown.toPlainText(), QDir::toNativeSeparators(QDir().absoluteFilePath("<b>a  b</b>.hex")));
    }

    void pasting()
    {
        const Panels panels;
        QLineEdit* field = panels.flashView.writePath();
        QApplication::clipboard()->setText("  \"/my fw/a.hex\" \n");
        QTest::keySequence(field, QKeySequence::Paste);
        QCOMPARE(panels.settings.flashWrite, QString("/my fw/a.hex"));
    }
};

QTEST_MAIN(tst_Memory)
#include "tst_memory.moc"
