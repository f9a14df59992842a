#include "memory/Eeprom.h"
#include "memory/EepromView.h"
#include "memory/Flash.h"
#include "memory/FlashView.h"
#include "support/Bench.h"

#include <QFileDialog>
#include <QLineEdit>
#include <QTimer>
#include <QtTest>

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
    void requests()
    {
        Panels panels;
        for (const QString row : {"C:/fw/App.HEX|i|i", "app.eep|i|i", "my dir/app.v1.bin|r|r", "app.s19|m|m",
                                  "app.srec|m|m", "app.elf|e|e", "app.a90|a90|a", "a.dir/fw%1%2|a|a"}) {
            const QStringList parts = row.split('|'); // path, the flash's format, the EEPROM's
            panels.flashView.writePath()->setText(parts[0]);
            panels.eepromView.writePath()->setText(parts[0]);
            QCOMPARE(panels.settings.cmdFlashWrite, QStringList({"-U", "flash:w:" + parts[0] + ":" + parts[1]}));
            QCOMPARE(panels.settings.cmdEepromWrite, QStringList({"-U", "eeprom:w:" + parts[0] + ":" + parts[2]}));
        }
        panels.flashView.writePath()->clear();
        QVERIFY(!panels.flashView.writeButton()->isEnabled() && !panels.flashView.writeVerifyButton()->isEnabled());
        QVERIFY(!panels.settings.flashEnable && panels.settings.eepromEnable);
        QVERIFY(!panels.eepromView.readButton()->isEnabled() && !panels.eepromView.readVerifyButton()->isEnabled());
    }

    void browse()
    {
        const Panels panels;
        const QFileInfo app(QCoreApplication::applicationFilePath()); // as good as a firmware beside the application
        const QFileInfo hex(DATA_FOLDER "/demo/blink.hex");
        QStringList seen; // the folder that the dialog opens in, and what the field holds after it
        for (const QString& chosen : {app.filePath(), hex.filePath(), QString()}) {
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
};

QTEST_MAIN(tst_Memory)
#include "tst_memory.moc"
