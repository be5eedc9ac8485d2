#pragma once

#include "richtext/markdown/InlineRun.h"

#include <QList>
#include <QStringView>

namespace Markdown {

/// Parses one line by the inline rules of CommonMark, with "~~" for strikethrough, and returns it as runs of text. No
/// run is empty, and adjacent runs differ in style (code inside bold and plain code count as different). White space is
/// kept. HTML tags and comments stay text, and their contents are not parsed. An image is replaced by its description,
/// in the surrounding style. A link without a target is replaced by its text. Each U+0000 and each unpaired surrogate
/// becomes U+FFFD.
QList<InlineRun> inlineRuns(QStringView line);

} // namespace Markdown
