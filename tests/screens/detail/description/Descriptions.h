#pragma once

#include "model/ADFNode.h"
#include "richtext/ADFMarkdown.h"

/// Documents for tests of the description.
namespace Descriptions {

inline ADFNode node(const QString &type, const QList<ADFNode> &content)
{
    ADFNode made;
    made.type = type;
    made.content = content;
    return made;
}

inline ADFNode text(const QString &words)
{
    ADFNode made;
    made.type = QStringLiteral("text");
    made.text = words;
    return made;
}

/// A paragraph, a table with one cell, and a picture.
inline ADFNode rich()
{
    ADFNode document = ADFMarkdown::document(QStringLiteral("Avant"));
    const ADFNode cell = node(QStringLiteral("tableCell"),
                              {node(QStringLiteral("paragraph"), {text(QStringLiteral("A"))})});
    const ADFNode row = node(QStringLiteral("tableRow"), {cell});
    document.content->append(node(QStringLiteral("table"), {row}));
    document.content->append(
        node(QStringLiteral("mediaSingle"), {node(QStringLiteral("media"), {})}));
    return document;
}

} // namespace Descriptions
