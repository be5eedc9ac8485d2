#pragma once

#include "model/ADFNode.h"
#include "model/dates/UserCalendar.h"

#include <QStringList>

#include <functional>

/// Converts Markdown, as users type it, to documents, and documents to Markdown for editing. The grammar is small:
/// headings, rules, quotes, nested lists, task lists, fenced code and paragraphs; inside a line, the rules of CommonMark
/// with "~~" for strikethrough. The conversions never fail: text that is not valid markup stays text. Mentions are not
/// part of the grammar; see `ADF::linkingMentions`.
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

/// Converts a document to Markdown for editing. What the grammar cannot represent is reduced to text: a table to lines
/// with vertical bars, a picture to "[pièce jointe]", a panel to its content; see `MarkdownLosses`. Dates are printed
/// as days of the calendar. Literal text is not escaped.
QString markdown(const ADFNode &document, const UserCalendar &calendar);
/// The same for a document that may be absent; an absent one gives an empty text.
QString markdown(const std::optional<ADFNode> &document, const UserCalendar &calendar);

} // namespace ADFMarkdown
