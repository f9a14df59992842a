// Files of all kinds, as Korvel and the real avrdude judge them.

#include "memory/FlashView.h"
#include "support/Desk.h"
#include "support/Table.h"

class tst_Firmware : public QObject
{
    Q_OBJECT

private slots:
    void filesForTheFlash()
    {
        Desk desk;
        desk.boxes.button = QMessageBox::Yes;
        const auto* flash = desk.window->findChild<FlashView*>();
        for (const QStringList& line : linesOf("firmware.txt")) {
            const QStringList sample = line[2].mid(1).split(' ');
            if (!line[2].startsWith('@'))
                desk.folder.write(line[1], line[2].toUtf8());
            else if (!sample[0].isEmpty())
                desk.folder.write(line[1],
                                  desk.folder.read(TEST_FOLDER "/data/" + sample[0])
                                      .mid(0, sample.size() > 1 ? sample[1].toInt() : -1));
            const QByteArray chip = desk.folder.read("chip");
            flash->writePath()->setText(line[1]);
            const QString asked = line[3].isEmpty() ? QString()
                                                    : "FLASH, by default No: " + line[3]
                    + " + The chip would be erased for nothing.\nDo you want to go on all the same? | ";
            const QString told = desk.boxAfter(flash->writeButton());
            QCOMPARE(line[0] + ": " + told.left(asked.size()), line[0] + ": " + asked);
            const bool isTaken = told.mid(asked.size()).startsWith("FLASH: FLASH written successfully.");
            const bool isTouched = chip != desk.folder.read("chip"); // which the row before has written
            QVERIFY2(!(isTouched && line[4].endsWith("not touched")), qPrintable(line[0]));
#ifdef Q_OS_WIN
            if (line[4].contains("elfutils"))
                continue; // avrdude has another libelf there
#endif
            QVERIFY2(isTaken == line[4].startsWith("taken"), qPrintable(line[0] + ": " + told));
        }
    }
};

QTEST_MAIN(tst_Firmware)
#include "tst_firmware.moc"
