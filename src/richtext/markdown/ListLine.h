#pragma once

#include <QStringView>

#include <optional>

namespace Markdown {

/// The parsed form of one line of a list.
struct ListLine
{
    /// Width of the leading white space: a space counts 1, a tab 4.
    qsizetype indent = 0;
    /// The line has a number marker.
    bool ordered = false;
    /// The number of the marker; 1 for a bullet, and for digits that are not those of ASCII.
    int number = 1;
    /// The line is a bullet with a check box.
    bool isTask = false;
    bool checked = false;
    /// What follows the marker, as it stands.
    QStringView text;

    /// Tasks of the outermost level make a task list; further in, lists know no check boxes.
    bool beginsTaskList() const { return isTask && indent == 0; }
};

/// The line read as one of a list; nothing when it has no marker.
std::optional<ListLine> parseListLine(QStringView line);

} // namespace Markdown
