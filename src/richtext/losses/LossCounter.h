#pragma once

#include "model/ADFNode.h"
#include "richtext/losses/MarkdownLosses.h"
#include "richtext/losses/ReadBack.h"

/// Visits a document and counts what Markdown cannot represent.
class LossCounter
{
public:
    explicit LossCounter(const QList<JiraUser> &users) : m_users(users) {}

    void visit(const ADFNode &document);
    const MarkdownLosses &losses() const { return m_losses; }

private:
    /// Where a node stands.
    struct Place
    {
        bool inQuote = false;
        /// In a table, whose cells are reduced to one line each.
        bool inTable = false;
        TextPlace text = TextPlace::Page;
    };

    void visitNode(const ADFNode &node, Place place);
    void visitChildren(const ADFNode &node, Place place);
    void visitItem(const ADFNode &item, Place place);
    void countKind(const ADFNode &node, Place place);
    void countMedia(const ADFNode &node);
    void countQuoted(const ADFNode &node);
    void countNumbers(const ADFNode &list);
    void countStyles(const ADFNode &node, const ADFNode *previous);
    void countText(const ADFNode &block, Place place);
    bool isRestored(const ADFNode &mention) const;

    QList<JiraUser> m_users;
    MarkdownLosses m_losses;
};
