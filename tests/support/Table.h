#pragma once

#include "support/WorkFolder.h"

#include <QTest>

/// The lines of a table in tests/data, each as the texts between its bars. Blanks around a bar do not count, "\n" and
/// "\r" stand for the characters, and lines that begin with # are comments.
inline QVector<QStringList> linesOf(const QString& table)
{
    static const QRegularExpression bar(" *\\| *");
    QVector<QStringList> lines;
    for (const QString& line : QString(WorkFolder::read(TEST_FOLDER "/data/" + table)).split('\n', Qt::SkipEmptyParts))
        if (!line.startsWith('#'))
            lines += QString(line).replace("\\n", "\n").replace("\\r", "\r").split(bar);
    return lines;
}

/// What a table says of @p word: the second text of the line that begins with it. Ends the test program when there is
/// no such line.
inline QString lookUp(const QString& table, const QString& word)
{
    for (const QStringList& line : linesOf(table))
        if (line[0] == word)
            return line[1];
    qFatal("%s: no line for \"%s\"", qPrintable(table), qPrintable(word));
}

/// The cases of a test, for its _data() function: from a table, a line each, with its name and the texts of the
/// @p columns. Ends the test program when there is no table, or a text too few or too many.
inline void casesFrom(const QString& table, std::initializer_list<const char*> columns)
{
    for (const char* column : columns)
        QTest::addColumn<QString>(column);
    for (const QStringList& line : linesOf(table)) {
        QTestData& row = QTest::newRow(qPrintable(line[0]));
        for (const QString& text : line.mid(1))
            row << text;
    }
}

/// What the current case has in @p column.
inline QString cell(const char* column)
{
    return *static_cast<QString*>(QTest::qData(column, QMetaType::QString));
}
