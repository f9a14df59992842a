#pragma once

#include "app/log/AvrdudeMessage.h"
#include "avrdude/Avrdude.h"
#include "support/BoxAnswerer.h"
#include "support/WorkFolder.h"

/// A runner in a fresh working folder, with the stand-in for avrdude.
struct Bench {
    Bench() { avrdude.settings().avrdude = QStringLiteral(STAND_IN); }

    [[nodiscard]] bool isIdle() const { return avrdude.findChildren<QProcess*>().isEmpty(); }

    /// Lets the stand-in play @p script and waits for the run's end. Returns how often the callback ran.
    int run(const QByteArray& script, const QStringList& arguments = {})
    {
        const auto calls = std::make_shared<int>(0); // a run that takes too long may end when nobody waits any more
        folder.write(QStringLiteral("script"), script);
        avrdude.execute(arguments, [calls] { ++*calls; });
        return QTest::qWaitFor([this] { return isIdle(); }) ? *calls : -1;
    }

    /// Begins a run, with @p button if there is one, that prints @p first, and after finish() does the @p rest.
    void begin(const QByteArray& first, const QByteArray& rest, QPushButton* button = nullptr)
    {
        folder.write("first", first);
        folder.write("script", "print first\nawait go\n" + rest);
        button ? button->click() : static_cast<void>(avrdude.execute({}));
        QTRY_VERIFY(log.toPlainText().endsWith(first));
    }

    void finish() const
    {
        folder.write("go", "");
        QTRY_VERIFY(isIdle());
    }

    /// What avrdude was asked for, run by run, without the arguments that all runs begin with.
    [[nodiscard]] QStringList requests() const
    {
        QStringList requests;
        for (const QString& run : folder.runs())
            requests += run.section('\t', 7).replace('\t', ' ');
        return requests;
    }

    /// Clicks, waits for a box and the end of the run, and returns the boxes and the requests that it came to.
    QString click(QPushButton* button)
    {
        const auto before = requests().size();
        button->click();
        const QStringList told = boxes.wait();
        if (!QTest::qWaitFor([this] { return isIdle(); }))
            return "still busy";
        return (told + boxes.take() + requests().mid(before)).join('|');
    }

    WorkFolder folder;
    BoxAnswerer boxes;
    AvrdudeMessage log;
    Avrdude avrdude {nullptr, &log};
};
