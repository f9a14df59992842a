// Writes boards on the virtual programmer, one after another, in the whole window: boards FIRST LAST. Every fifth fails
// in its own way; every twenty-fifth kills this program in the middle, and who started it goes on with the next.
// Each chip stays in a file, and what the window shows of each board goes into "shown". Started by scripts/boards.sh,
// which has the profile "Lot" ready in the working folder and looks at what came of it.

#include "app/KorvelApp.h"
#include "app/log/AvrdudeMessage.h"
#include "app/log/RunBar.h"
#include "avrdude/Avrdude.h"
#include "profiles/BoardView.h"
#include "profiles/Profiles.h"
#include "profiles/ProgrammingView.h"
#include "support/BoxAnswerer.h"

#include <csignal>
#include <iterator>

namespace {

struct Trouble {
    const char* name;
    const char* options; ///< of the virtual programmer
};

constexpr Trouble troubles[] = {{"killed", ""},
                                {"mismatch", "--flip=64"},
                                {"unplugged", "--unplug-after=256"},
                                {"wrong part", "--part=ATmega328P"},
                                {"stopped", ""}};

bool waitFor(const std::function<bool()>& condition)
{
    constexpr int patience = 60000; // milliseconds
    return QTest::qWaitFor(condition, patience);
}

} // namespace

int main(int argc, char* argv[])
{
    QApplication app(argc, argv);
    const QStringList arguments = QApplication::arguments();
    BoxAnswerer boxes;
    KorvelApp window;
    window.show();
    auto* avrdude = window.findChild<Avrdude*>();
    auto* view = window.findChild<ProgrammingView*>();
    emit view->profiles()->textActivated("Lot");
    QFile shown("shown");
    if (!shown.open(QIODevice::WriteOnly | QIODevice::Append))
        return 1;
    for (int board = arguments.value(1).toInt(); board <= arguments.value(2).toInt(); ++board) {
        constexpr int every = 5;
        const bool isGood = board % every != 0;
        const Trouble& trouble = troubles[static_cast<std::size_t>(board / every) % std::size(troubles)];
        const QString name = isGood ? "good" : trouble.name;
        QProcess programmer;
        QStringList options {QString("--state=chip-%1").arg(board), "--port=" + arguments.value(3)};
        if (!isGood)
            options += QString(trouble.options).split(' ', Qt::SkipEmptyParts);
        programmer.start(VIRTUAL_PROGRAMMER, options);
        if (!programmer.waitForReadyRead())
            return 1;

        int runs = 0;
        QObject onRun;
        QObject::connect(avrdude, &Avrdude::runningChanged, &onRun, [&](bool isRunning) {
            constexpr int whileItRuns = 100; // milliseconds
            const int number = board % 50 == 0 ? 1 : 3; // of the run to be killed: the flash, or the serial number
            if (!isRunning || ++runs > number)
                return;
            if (name == "stopped")
                QTimer::singleShot(whileItRuns, &onRun,
                                   [&] { window.findChild<RunBar*>()->findChild<QPushButton*>()->click(); });
            if (name == "killed" && runs == number)
                QTimer::singleShot(whileItRuns, &onRun, [&] {
                    shown.write(QByteArray::number(board) + "\tkilled\n");
                    shown.flush();
                    std::raise(SIGKILL);
                });
        });
        QTest::keyClick(view->writeButton(), Qt::Key_Return);
        if (!waitFor([&] { return !avrdude->isBusy() && !QApplication::activeModalWidget(); }))
            return 1;
        QStringList texts {QString::number(board), name};
        for (QLabel* label : window.findChild<BoardView*>()->findChildren<QLabel*>())
            texts += label->accessibleName().isEmpty() ? label->text() : label->accessibleName();
        texts += boxes.take().join('|').section('\n', 0, 0);
        shown.write(texts.join('\t').toUtf8() + '\n');
        shown.flush();
        programmer.kill();
        programmer.waitForFinished();
    }
    return 0;
}
