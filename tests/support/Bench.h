#pragma once

#include "app/AvrdudeMessage.h"
#include "avrdude/Avrdude.h"
#include "support/BoxAnswerer.h"
#include "support/WorkFolder.h"

#include <QTest>

/// A runner in a fresh working folder, with the stand-in for avrdude.
struct Bench {
    Bench() { avrdude.settings().avrdude = QStringLiteral(STAND_IN); }

    [[nodiscard]] bool isIdle() const { return avrdude.findChildren<QProcess*>().isEmpty(); }

    /// Lets the stand-in play @p script and waits for the run's end. Returns how often the callback ran.
    int run(const QByteArray& script, const QStringList& arguments = {})
    {
        int calls = 0;
        folder.write(QStringLiteral("script"), script);
        avrdude.execute(arguments, [&calls] { ++calls; });
        return QTest::qWaitFor([this] { return isIdle(); }) ? calls : -1;
    }

    WorkFolder folder;
    BoxAnswerer boxes;
    AvrdudeMessage log;
    Avrdude avrdude {nullptr, &log};
};
