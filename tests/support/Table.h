#pragma once

#include "support/WorkFolder.h"

#include <QTest>

/// The cases of a test, for its _data() function: from a table in tests/data, a line each, with bars between the name
/// and the texts of the @p columns. Blanks around a text do not count, "\n" and "\r" stand for the characters, and
/// lines that begin with # are comments. Ends the test program when there is no table, or a text too few or too many.
inline void casesFrom(const QString& table, std::initializer_list<const char*> columns)
{
    for (const char* column : columns)
        QTest::addColumn<QString>(column);
    for (const QString& line : QString::fromUtf8(WorkFolder::read(TEST_FOLDER "/data/" + table)).split('\n')) {
        if (line.trimmed().isEmpty() || line.startsWith('#'))
            continue;
        const QStringList cells = line.split('|');
        QTestData& row = QTest::newRow(qPrintable(cells[0].trimmed()));
        for (const QString& cell : cells.mid(1))
            row << cell.trimmed().replace("\\n", "\n").replace("\\r", "\r");
    }
}
