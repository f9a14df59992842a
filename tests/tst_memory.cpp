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
};

} // namespace

class tst_Memory : public QObject
{
    Q_OBJECT

private slots:
    void formats_data()
    {
        QTest::addColumn<QString>("flash");
        QTest::addColumn<QString>("eeprom");
        QTest::newRow("C:/fw/App.HEX") << "i"
                                       << "i";
        QTest::newRow("app.eep") << "i"
                                 << "i";
        QTest::newRow("my dir/app.v1.bin") << "r"
                                           << "r";
        QTest::newRow("app.s19") << "m"
                                 << "m";
        QTest::newRow("firmware/app.srec") << "m"
                                           << "m";
        QTest::newRow("app.elf") << "e"
                                 << "e";
        QTest::newRow("app.a90") << "a90"
                                 << "a";
        QTest::newRow("a.dir/fw%1%2") << "a"
                                      << "a";
    }

    void formats()
    {
        QFETCH(QString, flash);
        QFETCH(QString, eeprom);
        Panels panels;
        const QString path = QTest::currentDataTag();
        panels.flashView.writePath()->setText(path);
        panels.eepromView.writePath()->setText(path);
        const SettingsRecord& settings = panels.avrdude.settings();
        QCOMPARE(settings.cmdFlashWrite, QStringList({"-U", "flash:w:" + path + ":" + flash}));
        QCOMPARE(settings.cmdEepromWrite, QStringList({"-U", "eeprom:w:" + path + ":" + eeprom}));
    }

    void buttonsFollowThePaths()
    {
        Panels panels;
        const FlashView& view = panels.flashView;
        const SettingsRecord& settings = panels.avrdude.settings();
        const auto expect = [&](bool write, bool read) {
            QVERIFY(view.writeButton()->isEnabled() == write && view.writeVerifyButton()->isEnabled() == write);
            QVERIFY(view.readButton()->isEnabled() == read && view.readVerifyButton()->isEnabled() == read);
            QCOMPARE(settings.flashEnable, write);
            QVERIFY(!settings.eepromEnable && !panels.eepromView.writeButton()->isEnabled());
        };
        expect(false, false);
        QTest::keyClicks(view.writePath(), "a.hex");
        expect(true, false);
        view.writePath()->clear();
        QTest::keyClicks(view.readPath(), "b.bin");
        expect(false, true);
        QCOMPARE(settings.cmdFlashWrite, QStringList({"-U", "flash:w:a.hex:i"})); // the last one stays
        QVERIFY(settings.flashWrite.isEmpty() && settings.flashRead == "b.bin");
    }

    void operations()
    {
        Panels panels;
        SettingsRecord& settings = panels.avrdude.settings();
        settings.flashWrite = "flash.hex";
        settings.flashRead = "flash.bin";
        settings.eepromWrite = "eeprom.hex";
        settings.eepromRead = "eeprom.bin";
        panels.flash.refresh();
        panels.eeprom.refresh();
        const auto click = [&](QPushButton* button, const QString& output) {
            panels.folder.write("script", "err " + output.toUtf8());
            QTest::mouseClick(button, Qt::LeftButton);
            return panels.boxes.wait().join('|');
        };
        for (const auto& [view, name] : {qMakePair<MemoryView*, QString>(&panels.flashView, "flash"),
                                         qMakePair<MemoryView*, QString>(&panels.eepromView, "eeprom")}) {
            const QString title = name.toUpper();
            const QString verified = title + " verified successfully.";
            const QString verifying = "verifying " + name + " memory";
            QCOMPARE(click(view->writeButton(), "Verifying " + name), title + ": " + title + " written successfully.");
            QCOMPARE(click(view->writeButton(), verifying),
                     title + ": " + title + " written successfully.\n" + verified);
            QCOMPARE(click(view->writeVerifyButton(), verifying), title + ": " + verified);
            QCOMPARE(click(view->readButton(), verifying), title + ": " + title + " read successfully.");
            QCOMPARE(click(view->readVerifyButton(), verifying), title + ": " + verified);
            QCOMPARE(click(view->readVerifyButton(), "verification error"), QString("AVRDUDE: Verification error."));
            QStringList requests;
            for (const QStringList& run : panels.folder.runs().mid(name == "flash" ? 0 : 6))
                requests += run.mid(7).join('|').remove(name);
            QCOMPARE(requests,
                     QStringList({"-U|:w:.hex:i", "-U|:w:.hex:i", "-U|:v:.hex:i", "-U|:r:.bin:r", "-U|:v:.bin:r",
                                  "-U|:v:.bin:r"}));
        }
        QVERIFY(settings.flashEnable && settings.eepromEnable && !settings.fusesEnable);
        // A command that came with the record is what Write runs, whatever the path says.
        settings.cmdFlashWrite = QStringList {"-Dx"};
        click(panels.flashView.writeButton(), "");
        QCOMPARE(panels.folder.runs().constLast().constLast(), QString("-Dx"));
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
        QTest::newRow("missing file") << "fw/none.hex"
                                      << "app/fw"
                                      << "work/b.hex"
                                      << "work/b.hex";
        QTest::newRow("cancelled") << "fw/a.hex"
                                   << "app/fw"
                                   << ""
                                   << "fw/a.hex";
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
            QCOMPARE(field->text(), real(stored));
            QVERIFY(static_cast<QPushButton*>(buttons.at(writes ? 1 : 4))->isEnabled());
        }
        QDir(QCoreApplication::applicationDirPath() + "/fw").removeRecursively();
    }
};

QTEST_MAIN(tst_Memory)
#include "tst_memory.moc"
