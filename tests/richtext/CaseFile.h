#pragma once

#include <QList>
#include <QString>

#include <ostream>

/// A test case: the input and the expected outcome, line by line.
struct Case
{
    QString file;
    QString name;
    QString input;
    QString expected;
};

/// Reads the cases of a file under tests/cases. Each case begins with a line "=== name". Its input ends at a line
/// "--->", and its expected outcome ends at the next case. Characters that an editor would hide or change are written
/// as symbols: ␠ (space), ␉ (tab), ␍ (carriage return), ␀ (U+0000) and ⍽ (no-break space).
QList<Case> casesOf(const QString &path);

/// The cases of all files in a folder under tests/cases whose name begins with `prefix`.
QList<Case> casesIn(const QString &folder, const QString &prefix);

/// Names a case in test output.
void PrintTo(const Case &value, std::ostream *stream);

/// The name of a parameterised test, made from the file and the case in letters, digits and underscores.
std::string testName(const Case &value);
