#pragma once

#include <QStringView>

#include <optional>

namespace Markdown {

/// The parsed form of one line of a list.
struct ListLine
{
    /// The width of the leading white space: 1 for a space, 4 for a tab.
    qsizetype indent = 0;
    /// True if the line has a number marker.
    bool ordered = false;
    /// The number in the marker; 1 for a bullet and for digits other than ASCII digits.
    int number = 1;
    /// True if the line is a bullet with a check box.
    bool isTask = false;
    bool checked = false;
    /// The text after the marker, unchanged.
    QStringView text;

    /// Only tasks of the outermost level make a task list, because nested lists have no check boxes.
    bool beginsTaskList() const { return isTask && indent == 0; }
};

/// Parses a line of a list; nothing if the line has no marker.
std::optional<ListLine> parseListLine(QStringView line);

} // namespace Markdown
