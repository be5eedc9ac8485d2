#pragma once

#include "model/ADFNode.h"
#include "model/JiraUser.h"

#include <QStringList>

/// Queries on documents. They visit the nodes in document order; an attribute of the wrong type counts as absent.
namespace ADF {

/// The node kinds whose children are inline: paragraph, heading, taskItem, decisionItem, codeBlock.
bool isInlineContainer(QStringView type);

/// The attribute as text (a number in its decimal form), or nothing if it is absent.
std::optional<QString> attribute(const ADFNode &node, const QString &name);

/// True if the node has a mark of the given kind.
bool hasMark(const ADFNode &node, QStringView type);

/// The text of the document: each block on a line of its own, inline nodes joined without a separator.
QString plainText(const ADFNode &node);

/// True if the node contains neither text other than white space nor rich content.
bool isEmpty(const ADFNode &node);

/// True if the node or one of its descendants has content that Markdown cannot represent or plain text does not show:
/// tables, media, panels, expands, layouts, extensions.
bool containsRichContent(const ADFNode &node);

/// The attachments that media nodes are linked to (attribute velmoraAttachmentID); a node comes before its children.
QStringList mediaAttachmentIDs(const ADFNode &node);

/// The addresses in link marks and inline cards; a node comes before its children.
QStringList linkURLs(const ADFNode &node);

/// The mentioned users, one for each mention that has an id, in document order; the names without their leading "@".
QList<JiraUser> mentionedUsers(const ADFNode &node);

/// Links media to attachments by position: the n-th media or mediaInline node gets the n-th id, as long as there are
/// ids. `index` is the number of media nodes visited so far, so that one list of ids can apply to several documents.
ADFNode annotated(ADFNode node, const QStringList &ids, qsizetype &index);

} // namespace ADF
