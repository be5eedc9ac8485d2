#pragma once

#include "richtext/ADFNodes.h"

/// Nodes for tests.
namespace SampleTrees {

inline ADFNode with(ADFNode node, const QString &name, const JSONValue &value)
{
    node.attrs = node.attrs.value_or(ADFAttributes());
    node.attrs->insert(name, value);
    return node;
}

inline ADFNode paragraph(const QString &text)
{
    return ADF::container(u"paragraph", {ADF::text(text)});
}

inline ADFNode heading(int level, const QString &text)
{
    return with(ADF::container(u"heading", {ADF::text(text)}), QStringLiteral("level"), level);
}

inline ADFNode link(const QString &text, const QString &address)
{
    const ADFAttributes attrs{{QStringLiteral("href"), JSONValue(address)}};
    return ADF::text(text, {{QStringLiteral("link"), attrs}});
}

inline ADFNode code(const QString &text)
{
    return ADF::container(u"codeBlock", {ADF::text(text)});
}

inline ADFNode expand(const QString &title, const QList<ADFNode> &content)
{
    return with(ADF::container(u"expand", content), QStringLiteral("title"), JSONValue(title));
}

inline ADFNode row(QStringView cellType, const QStringList &texts)
{
    QList<ADFNode> cells;
    for (const auto &text : texts)
        cells.append(ADF::container(cellType, {paragraph(text)}));
    return ADF::container(u"tableRow", cells);
}

inline ADFNode bullets(const QStringList &texts)
{
    QList<ADFNode> items;
    for (const auto &text : texts)
        items.append(ADF::container(u"listItem", {paragraph(text)}));
    return ADF::container(u"bulletList", items);
}

inline ADFNode task(const QString &text, bool isDone)
{
    return with(ADF::container(u"taskItem", {ADF::text(text)}), QStringLiteral("state"),
                JSONValue(isDone ? u"DONE" : u"TODO"));
}

} // namespace SampleTrees
