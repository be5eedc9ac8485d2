#pragma once

#include "richtext/markdown/InlineRun.h"

#include <QList>
#include <QStringView>

namespace Markdown {

/// One line by the inline rules of CommonMark, with "~~" for strikethrough, as runs of text; no run is empty, and
/// neighbours differ in style (code inside bold and plain code differ, too). White space stays as it is. HTML tags and
/// comments stay text, and nothing in them is markup. An image leaves its description, set like its surroundings. A
/// link without a target leaves its words. U+0000 and half surrogate pairs become U+FFFD, one for one.
QList<InlineRun> inlineRuns(QStringView line);

} // namespace Markdown
