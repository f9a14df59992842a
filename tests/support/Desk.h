#pragma once

#include "app/KorvelApp.h"
#include "settings/SettingsView.h"
#include "support/Bench.h"

/// The main window in a fresh working folder, and the virtual programmer with a fresh chip in it, chosen.
struct Desk {
    explicit Desk(const QString& options = {})
    {
        startProgrammer(options);
        port = QRegularExpression(":\\d+").match(programmer.readAllStandardOutput()).captured().toUtf8();
        for (const QString file : {"programmer/Virtual programmer.json", "profiles/Blink complete.json",
                                   "mcu/ATmega16.json", "mcu/ATmega328P.json", "demo/blink.hex", "demo/greeting.eep"})
            folder.write(file, folder.read(DATA_FOLDER "/" + file).replace(":7016", port)); // the one that was free
        window = std::make_unique<KorvelApp>();
        window->show();
        avrdude = window->findChild<Avrdude*>();
        window->findChild<SettingsView*>()->programmer()->setCurrentText("Virtual programmer");
    }

    ~Desk()
    {
        programmer.kill();
        programmer.waitForFinished();
    }

    /// Starts the virtual programmer, again where it runs already; the chip's memories stay.
    void startProgrammer(const QString& options)
    {
        programmer.kill();
        programmer.waitForFinished();
        const QString samePort = port.isEmpty() ? "0" : port.mid(1);
        programmer.start(VIRTUAL_PROGRAMMER,
                         QStringList {"--state=chip", "--port=" + samePort} + options.split(' ', Qt::SkipEmptyParts));
        programmer.waitForReadyRead();
    }

    /// Runs avrdude behind the window's back.
    int runAvrdude(const QStringList& arguments) const
    {
        return QProcess::execute("avrdude", QStringList {"-pm16", "-cstk500v1", "-Pnet:127.0.0.1" + port} + arguments);
    }

    bool logHas(const QString& text) const { return avrdude->log().toPlainText().contains(text); }

    /// Clicks, waits for the end of the run, and returns the boxes that told it.
    QString boxAfter(QPushButton* button)
    {
        QTest::mouseClick(button, Qt::LeftButton);
        QStringList told = boxes.wait(30000);
        if (QTest::qWaitFor([this] { return !avrdude->isBusy(); }, 30000)) // the first may have been a question
            told += boxes.take();
        return told.isEmpty() ? "no box; the log says: " + avrdude->log().toPlainText()
                              : told.join(" | ") + (QApplication::overrideCursor() ? ", pointer still busy" : "");
    }

    WorkFolder folder;
    QProcess programmer;
    QByteArray port; ///< ":7016"
    BoxAnswerer boxes;
    std::unique_ptr<KorvelApp> window;
    Avrdude* avrdude = nullptr;
};
