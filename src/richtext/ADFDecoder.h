#pragma once

#include "model/ADFNode.h"
#include "richtext/DecodingError.h"

#include <expected>
#include <simdjson.h>
#include <string_view>
#include <vector>

/// Decodes parsed JSON recursively. Keeps the path to the current member, so that an error can name its position.
class ADFDecoder
{
public:
    using Element = simdjson::dom::element;
    template <typename T>
    using Result = std::expected<T, DecodingError>;

    /// `maximumDepth` is the maximum number of nested nodes and values.
    explicit ADFDecoder(int maximumDepth) : m_maximumDepth(maximumDepth) {}

    Result<ADFNode> node(const Element &element);
    Result<JSONValue> value(const Element &element);

private:
    /// One element of the path: the name of a member or the index of an item.
    struct Part
    {
        std::string_view name;
        qsizetype index = -1;
    };
    /// Adds an element to the path and removes it at the end of the scope.
    class Step;

    Result<void> readMember(ADFNode &node, std::string_view name, const Element &element);
    Result<ADFMark> mark(const Element &element);
    Result<void> readMember(ADFMark &mark, std::string_view name, const Element &element);
    Result<QString> text(const Element &element);
    Result<int> integer(const Element &element);
    Result<ADFAttributes> object(const Element &element);
    Result<JSONValue::Array> array(const Element &element);
    template <typename Record>
    Result<Record> record(const Element &element);
    template <typename Item>
    Result<QList<Item>> list(const Element &element,
                             Result<Item> (ADFDecoder::*read)(const Element &));

    std::unexpected<DecodingError> failure(QString message) const;

    std::vector<Part> m_path;
    const int m_maximumDepth;
    int m_depth = 0;
};
