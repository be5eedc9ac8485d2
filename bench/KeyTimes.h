#pragma once

#include "FrameTable.h"
#include "FrameTimer.h"

#include <optional>

/// The number of times each key is pressed: the first argument of the program, 300 by default.
int presses();

/// True if the part should be measured. The second argument of the program selects a single part by its name.
bool isMeasured(const QString &part);

/// Presses a key so many times, each time while the window is idle. Returns the nanoseconds of each press.
std::vector<qint64> pressesOf(FrameTimer &timer, int count, Qt::Key key, const QString &text);

/// Presses J in the nearly empty window and adds the result to the table, which is created if it does not exist. Called
/// first, it is the baseline. Called again at the end, it shows how much the speed of the machine has changed.
void measureEmptyWindow(std::optional<FrameTable> &table, int presses);

/// The first item below another one that inherits a class; null if there is none.
QQuickItem *itemOf(QQuickItem *root, const char *kind);

/// The visible text editor of a window with an accessible name such as "Titre". Ends the program if there is none.
QQuickItem *editor(QQuickWindow &window, const QString &name);
