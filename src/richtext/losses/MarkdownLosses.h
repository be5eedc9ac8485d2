#pragma once

#include "model/ADFNode.h"
#include "model/JiraUser.h"

#include <QMap>
#include <QString>

/// What a document loses when it is converted to Markdown and back, in the order in which the losses are named.
enum class MarkdownLoss {
    /// A mention that becomes plain text: the text does not name one of the known users.
    Mention,
    Picture,
    Caption,
    /// A file that is not shown as a picture of its own.
    File,
    Table,
    Panel,
    Expand,
    Layout,
    Status,
    Date,
    Card,
    Emoji,
    Underline,
    Colour,
    /// A superscript or a subscript.
    Script,
    /// A mark or an alignment of another kind.
    OtherStyle,
    QuotedHeading,
    QuotedRule,
    QuotedTasks,
    QuotedQuote,
    /// Code that is also strong, emphasized or struck through; only the code remains.
    StyledCode,
    /// A block of a list item that is neither its first paragraph nor a list.
    ItemBlock,
    /// A task list inside a list item or inside another task list.
    ItemTasks,
    /// A line of text or a code block in which literal characters become markup, or markup becomes literal characters.
    Misread,
    Decision,
    Extension,
    /// A node of an unknown kind.
    Other,
};

/// How often each kind of loss occurs in a document.
struct MarkdownLosses
{
    /// Only the kinds that occur.
    QMap<MarkdownLoss, int> counts;

    bool isEmpty() const { return counts.isEmpty(); }
    void add(MarkdownLoss loss, int count = 1) { counts[loss] += count; }
    /// The losses in French: "2 images, 1 tableau". Empty if there are none.
    QString sentence() const;

    bool operator==(const MarkdownLosses &) const = default;
};

namespace ADFMarkdown {

/// The losses of a document that is edited as Markdown. `users` are those whose mentions are restored when the text is
/// saved (see `ADF::linkingMentions`). Differences that a reader cannot see are not counted, such as local ids, empty
/// paragraphs, and line breaks at the end of a paragraph.
MarkdownLosses losses(const ADFNode &document, const QList<JiraUser> &users);

} // namespace ADFMarkdown
