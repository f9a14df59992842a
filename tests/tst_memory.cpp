#include "memory/Eeprom.h"
#include "memory/EepromView.h"
#include "memory/Flash.h"
#include "memory/FlashView.h"
#include "support/Bench.h"

#include <QDir>
#include <QFileDialog>
#include <QLineEdit>
#include <QPushButton>
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
    void commands()
    {
        struct Row {
            QString path, flash, eeprom;
        };
        Panels panels;
        for (const Row& row : {Row {"C:/fw/App.HEX", "i", "i"},
                               {"app.eep", "i", "i"},
                               {"my dir/app.v1.bin", "r", "r"},
                               {"app.s19", "m", "m"},
                               {"firmware/app.srec", "m", "m"},
                               {"app.elf", "e", "e"},
                               {"app.a90", "a90", "a"},
                               {"a.dir/fw%1%2", "a", "a"}}) {
            panels.flashView.writePath()->setText(row.path);
            panels.eepromView.writePath()->setText(row.path);
            QCOMPARE(panels.settings.cmdFlashWrite, QStringList({"-U", "flash:w:" + row.path + ":" + row.flash}));
            QCOMPARE(panels.settings.cmdEepromWrite, QStringList({"-U", "eeprom:w:" + row.path + ":" + row.eeprom}));
        }
    }

    void buttonsFollowThePaths()
    {
        Panels panels;
        const auto expect = [&panels](const MemoryView& view, bool write, bool read) {
            QVERIFY(view.writeButton()->isEnabled() == write && view.writeVerifyButton()->isEnabled() == write);
            QVERIFY(view.readButton()->isEnabled() == read && view.readVerifyButton()->isEnabled() == read);
            QVERIFY((&view == &panels.flashView ? panels.settings.flashEnable : panels.settings.eepromEnable) == write);
        };
        expect(panels.flashView, false, false);
        QTest::keyClicks(panels.flashView.writePath(), "a.hex");
        QTest::keyClicks(panels.eepromView.readPath(), "b.bin");
        expect(panels.flashView, true, false);
        expect(panels.eepromView, false, true);
        panels.flashView.writePath()->clear();
        expect(panels.flashView, false, false);
        QCOMPARE(panels.settings.cmdFlashWrite, QStringList({"-U", "flash:w:a.hex:i"})); // the last one stays
        QCOMPARE(panels.settings.flashWrite + panels.settings.eepromRead, QString("b.bin"));
    }

    void operations()
    {
        Panels panels;
        panels.settings.flashWrite = "flash.hex";
        panels.settings.flashRead = "flash.bin";
        panels.settings.eepromWrite = "eeprom.hex";
        panels.settings.eepromRead = "eeprom.bin";
        panels.flash.refresh();
        panels.eeprom.refresh();
        const auto click = [&panels](QPushButton* button, const QString& output) {
            panels.folder.write("script", "err " + output.toUtf8());
            QTest::mouseClick(button, Qt::LeftButton);
            const QString box = panels.boxes.wait().join('|');
            return box + ' ' + panels.folder.runs().constLast().mid(7).join('|');
        };
        // Verification is reported only where avrdude speaks of it, in these letters.
        QCOMPARE(click(panels.flashView.writeButton(), "Verifying flash"),
                 QString("FLASH: FLASH written successfully. -U|flash:w:flash.hex:i"));
        QCOMPARE(click(panels.eepromView.writeButton(), "verifying flash"),
                 QString("EEPROM: EEPROM written successfully. -U|eeprom:w:eeprom.hex:i"));
        QCOMPARE(click(panels.eepromView.writeVerifyButton(), ""),
                 QString("EEPROM: EEPROM verified successfully. -U|eeprom:v:eeprom.hex:i"));
        QCOMPARE(click(panels.eepromView.readVerifyButton(), ""),
                 QString("EEPROM: EEPROM verified successfully. -U|eeprom:v:eeprom.bin:r"));
        // A command that came with the record is what Write runs, whatever the path says.
        panels.settings.cmdFlashWrite = QStringList {"-Dx"};
        QVERIFY(click(panels.flashView.writeButton(), "").endsWith(" -Dx"));
    }

    void browse_data()
    {
        // "app" stands for the application's folder, "work" for the working folder.
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("folder");
        QTest::addColumn<QString>("chosen");
        QTest::addColumn<QString>("stored");
        QTest::newRow("below the application") << ""
                                               << "app"
                                               << "app/fw/a.hex"
                                               << "fw/a.hex";
        QTest::newRow("elsewhere") << "fw/a.hex"
                                   << "app/fw"
                                   << "work/b.hex"
                                   << "work/b.hex";
        QTest::newRow("field holds a folder") << "fw"
                                              << "app/fw"
                                              << "app/fw/a.hex"
                                              << "fw/a.hex";
        QTest::newRow("field holds an absolute path") << "work/b.hex"
                                                      << "work"
                                                      << "app/fw/a.hex"
                                                      << "fw/a.hex";
        QTest::newRow("missing file, cancelled") << "fw/none.hex"
                                                 << "app/fw"
                                                 << ""
                                                 << "fw/none.hex";
    }

    void browse()
    {
        QFETCH(QString, text);
        QFETCH(QString, folder);
        QFETCH(QString, chosen);
        QFETCH(QString, stored);
        Panels panels;
        const auto real = [](QString path) {
            return path.replace(QRegularExpression("^app"), QCoreApplication::applicationDirPath())
                .replace(QRegularExpression("^work"), QDir::currentPath());
        };
        panels.folder.write(real("app/fw/a.hex"), ":00000001FF\n");
        panels.folder.write("b.hex", ":00000001FF\n");
        for (const bool writes : {true, false}) {
            QLineEdit* field = writes ? panels.flashView.writePath() : panels.eepromView.readPath();
            field->setText(real(text));
            QString seen;
            QTimer::singleShot(0, this, [&] {
                auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
                QVERIFY(dialog && dialog->nameFilters().size() == 7);
                seen = dialog->windowTitle() + ' ' + dialog->directory().path();
                dialog->selectFile(real(chosen));
                QMetaObject::invokeMethod(dialog, chosen.isEmpty() ? "reject" : "accept", Qt::QueuedConnection);
            });
            const auto buttons = field->parent()->findChildren<QPushButton*>(); // browse, action, verify of each row
            QTest::mouseClick(buttons.at(writes ? 0 : 3), Qt::LeftButton);
            QCOMPARE(seen,
                     (writes ? "SELECT FLASH FILE FOR WRITING " : "SELECT EEPROM FILE FOR READING ") + real(folder));
            QVERIFY(field->text() == real(stored) && buttons.at(writes ? 1 : 4)->isEnabled() != stored.isEmpty());
        }
        QDir(QCoreApplication::applicationDirPath() + "/fw").removeRecursively();
    }
};

QTEST_MAIN(tst_Memory)
#include "tst_memory.moc"
