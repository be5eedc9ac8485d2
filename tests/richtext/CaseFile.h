#pragma once

#include <QList>
#include <QString>

#include <ostream>

/// One case: what goes in, and what must come out, line by line.
struct Case
{
    QString file;
    QString name;
    QString input;
    QString expected;
};

/// The cases of a file under tests/cases. Each begins with a line "=== name"; its input ends at a line "--->", its
/// expected outcome at the next case. For what an editor would hide or change, the input writes ␠ (space), ␉ (tab),
/// ␍ (carriage return) and ␀ (U+0000); input and outcome write ⍽ (no-break space).
QList<Case> casesOf(const QString &path);

/// The cases of every file in a folder under tests/cases whose name begins with `prefix`.
QList<Case> casesIn(const QString &folder, const QString &prefix);

/// Names a case in test output.
void PrintTo(const Case &value, std::ostream *stream);

/// The name of a parameterised test: file and case, in letters, digits and underscores.
std::string testName(const Case &value);
