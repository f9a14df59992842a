// Plays avrdude for the tests. Appends its arguments to the file "runs" in the working directory, as one JSON array a
// line, then does what the file "script" there says, a word and its operand a line:
//   err TEXT, out TEXT   print TEXT and a line break
//   wait MS              sleep
//   exit CODE, crash     end; without either it ends with 0 after the last line

#include <QCoreApplication>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QThread>

#include <cstdio>
#include <cstdlib>

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    QFile runs(QStringLiteral("runs"));
    if (runs.open(QIODevice::Append)) {
        const auto arguments = QJsonArray::fromStringList(QCoreApplication::arguments().mid(1));
        runs.write(QJsonDocument(arguments).toJson(QJsonDocument::Compact) + '\n');
        runs.close();
    }

    QFile script(QStringLiteral("script"));
    if (!script.open(QIODevice::ReadOnly))
        return 0;
    while (!script.atEnd()) {
        const QByteArray line = script.readLine().trimmed();
        const QByteArray word = line.split(' ').first();
        const QByteArray operand = line.mid(word.size() + 1);
        if (word == "err" || word == "out") {
            std::FILE* stream = word == "err" ? stderr : stdout;
            std::fprintf(stream, "%s\n", operand.constData());
            std::fflush(stream);
        } else if (word == "wait") {
            QThread::msleep(operand.toULong());
        } else if (word == "exit") {
            return operand.toInt();
        } else if (word == "crash") {
            std::abort();
        }
    }
    return 0;
}
