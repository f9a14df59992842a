#pragma once

#include <QTest>

/// Names the columns of a test's table, for _data() functions.
template <typename... Types, typename... Names> void columns(Names... names)
{
    (QTest::addColumn<Types>(names), ...);
}

/// Adds a row called @p name to it.
template <typename... Values> void row(const char* name, const Values&... values)
{
    (QTest::newRow(name) << ... << values);
}
