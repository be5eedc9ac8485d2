#pragma once

#include "model/ADFNode.h"
#include "model/JiraUser.h"

#include <QStringList>

/// What the program asks of a document. Pure walks in document order; an attribute of the wrong kind reads as absent.
namespace ADF {

/// The node kinds whose children are inline: paragraph, heading, taskItem, decisionItem, codeBlock.
bool isInlineContainer(QStringView type);

/// The attribute as text (a number in its decimal form), or nothing.
std::optional<QString> attribute(const ADFNode &node, const QString &name);

/// The words of the document: blocks on lines of their own, inline nodes run together.
QString plainText(const ADFNode &node);

/// True when there is no word to read (white space aside) and no rich content.
bool isEmpty(const ADFNode &node);

/// True for content that Markdown can't carry or words don't show: tables, media, panels, expands, layouts, extensions;
/// on the node itself or below it.
bool containsRichContent(const ADFNode &node);

/// The attachments that media nodes are tied to (attribute velmoraAttachmentID), a node before its children.
QStringList mediaAttachmentIDs(const ADFNode &node);

/// The targets of link marks and inline cards, a node before its children.
QStringList linkURLs(const ADFNode &node);

/// The people mentioned, one per mention that has an id, in document order; the name without its leading "@".
QList<JiraUser> mentionedUsers(const ADFNode &node);

/// Ties media to attachments by position: the n-th media or mediaInline node of the walk gets the n-th id, as far as
/// there are ids. `index` counts the media nodes seen, so that one series of ids can span several documents.
ADFNode annotated(ADFNode node, const QStringList &ids, qsizetype &index);

} // namespace ADF
