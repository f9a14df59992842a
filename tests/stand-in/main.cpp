// Plays avrdude for the tests. Appends its arguments to the file "runs" in the working directory, a line a
// run with tabs between them, then does what the file "script" there says, a word and its operand a line:
//   err TEXT, out TEXT   print TEXT and a line break
//   print FILE           print the file to standard error
//   make FILE HEX        write the bytes into a file
//   wait MS              sleep
//   await FILE           sleep until there is such a file
//   exit CODE, crash     end; without either it ends with 0 after the last line

#include <QtCore>

#include <cstdio>
#include <cstdlib>

#ifdef Q_OS_WIN
#include <windows.h>
#endif

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    QFile runs(QStringLiteral("runs"));
    runs.open(QIODevice::Append);
    runs.write((QCoreApplication::arguments().mid(1).join(QLatin1Char('\t')) + QLatin1Char('\n')).toUtf8());
    runs.close();

    QFile script(QStringLiteral("script"));
    script.open(QIODevice::ReadOnly);
    while (!script.atEnd()) {
        const QByteArray line = script.readLine().trimmed();
        const QByteArray word = line.split(' ').first();
        const QByteArray operand = line.mid(word.size() + 1);
        if (word == "err" || word == "out") {
            std::fprintf(word == "err" ? stderr : stdout, "%s\n", operand.constData());
            std::fflush(nullptr);
        } else if (word == "print") {
            QFile file(QString::fromUtf8(operand));
            file.open(QIODevice::ReadOnly);
            std::fputs(file.readAll().constData(), stderr);
            std::fflush(nullptr); // Wine keeps it
        } else if (word == "make") {
            QFile file(QString::fromUtf8(operand.split(' ').first()));
            file.open(QIODevice::WriteOnly);
            file.write(QByteArray::fromHex(operand.split(' ').last()));
        } else if (word == "wait") {
            QThread::msleep(operand.toULong());
        } else if (word == "await") {
            while (!QFile::exists(QString::fromUtf8(operand)))
                QThread::msleep(10);
        } else if (word == "exit") {
            return operand.toInt();
        } else if (word == "crash") {
#ifdef Q_OS_WIN
            ::TerminateProcess(::GetCurrentProcess(), STATUS_ACCESS_VIOLATION); // an abort() would end normally
#endif
            std::abort();
        }
    }
    return 0;
}
