#pragma once

#include "model/JSONValue.h"

#include <QList>
#include <QMap>
#include <QString>

#include <optional>

using ADFAttributes = QMap<QString, JSONValue>;

/// An inline mark of a document: strong, link and so on.
struct ADFMark
{
    QString type;
    std::optional<ADFAttributes> attrs;

    bool operator==(const ADFMark &) const = default;
};

/// One node of a document in the Atlassian Document Format, kept as it was received. The kind is a string, so that
/// kinds unknown to the program are preserved when the document is written back. Every optional field distinguishes
/// absent from empty.
struct ADFNode
{
    QString type;
    /// The text; present on text nodes only.
    std::optional<QString> text;
    std::optional<QList<ADFNode>> content;
    std::optional<QList<ADFMark>> marks;
    std::optional<ADFAttributes> attrs;
    /// The version of the document; present on the root node only.
    std::optional<int> version;

    bool operator==(const ADFNode &other) const;
};

size_t qHash(const ADFMark &mark, size_t seed = 0);
size_t qHash(const ADFNode &node, size_t seed = 0);
