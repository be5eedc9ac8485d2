#pragma once

#include "model/Issue.h"

/// The text as a line shows it: each sequence of line breaks, tabs and other control characters becomes one blank, and
/// those at the start and the end are removed. A text without them is returned as it is.
QString oneLine(const QString &text);

/// The issue as rows, cards and titles show it: its summary, the summary of its parent and the name of its assignee are
/// on one line.
Issue withOneLineTexts(const Issue &issue);
