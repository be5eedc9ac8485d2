#pragma once

#include "model/ADFNode.h"

#include <QStringList>

#include <functional>

/// Converts Markdown, as users type it, to documents. The grammar is small: headings, rules, quotes, nested lists, task
/// lists, fenced code and paragraphs; inside a line, the rules of CommonMark with "~~" for strikethrough. The
/// conversion never fails: text that is not valid markup stays text. Mentions are not part of it; see
/// `ADF::linkingMentions`.
namespace ADFMarkdown {

/// Returns the local id of a task list or of a task, a new one at each call.
using LocalIDSource = std::function<QString()>;

/// Returns a random UUID.
QString randomLocalID();

/// The maximum nesting depth of lists; lines with a deeper indent are added to the deepest list. It ensures that
/// `ADFCoding` can decode every document made here.
inline constexpr int maximumListDepth = 100;

/// Converts a text to a document; an empty text gives a document without content. Line breaks are LF or CR LF.
ADFNode document(const QString &text, const LocalIDSource &localIDs = randomLocalID);

/// Converts lines to blocks. Only blank lines separate paragraphs.
QList<ADFNode> parseBlocks(const QStringList &lines, const LocalIDSource &localIDs = randomLocalID);

/// Converts a text of any number of lines to inline nodes; each line break becomes a hard break. Empty for an empty
/// text.
QList<ADFNode> inlineNodes(const QString &text);

} // namespace ADFMarkdown
