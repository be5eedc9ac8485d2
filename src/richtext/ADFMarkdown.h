#pragma once

#include "model/ADFNode.h"

#include <QStringList>

#include <functional>

/// Markdown as users type it, to documents. A small grammar: headings, rules, quotes, nested lists, task lists, fenced
/// code, paragraphs; inline, the rules of CommonMark with "~~" for strikethrough. Nothing fails: what is no markup is
/// text. Mentions are not part of it; see `ADF::linkingMentions`.
namespace ADFMarkdown {

/// Gives the local id of a task list or of a task, fresh at each call.
using LocalIDSource = std::function<QString()>;

/// A random UUID.
QString randomLocalID();

/// Lists nest at most this deep; what is indented further joins the deepest level. Keeps a document of any text within
/// what `ADFCoding` reads back.
inline constexpr int maximumListDepth = 100;

/// The document of a text; without any content for the empty text. Line ends are LF or CR LF.
ADFNode document(const QString &text, const LocalIDSource &localIDs = randomLocalID);

/// The blocks of the lines. Blank lines separate paragraphs; there is no other separator.
QList<ADFNode> parseBlocks(const QStringList &lines, const LocalIDSource &localIDs = randomLocalID);

/// The inline nodes of a text of any number of lines: each line break is a hard break. Empty for the empty text.
QList<ADFNode> inlineNodes(const QString &text);

} // namespace ADFMarkdown
