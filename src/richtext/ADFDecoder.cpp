#include "richtext/ADFDecoder.h"

#include "richtext/ADFCoding.h"
#include "richtext/SyntaxError.h"

#include <cmath>
#include <limits>

using namespace Qt::StringLiterals;

namespace {

QString toText(std::string_view utf8)
{
    return QString::fromUtf8(utf8.data(), qsizetype(utf8.size()));
}

/// Stores a result in its field, or returns the error.
template <typename Field, typename T>
std::expected<void, DecodingError> store(Field &field, std::expected<T, DecodingError> result)
{
    if (!result)
        return std::unexpected(std::move(result.error()));
    field = std::move(*result);
    return {};
}

std::expected<simdjson::dom::element, DecodingError> parsed(simdjson::dom::parser &parser,
                                                            const QByteArray &json)
{
    simdjson::dom::element root;
    if (const auto error = parser.parse(json.constData(), size_t(json.size())).get(root))
        return std::unexpected(syntaxError(error));
    return root;
}

} // namespace

class ADFDecoder::Step
{
public:
    Step(ADFDecoder &decoder, Part part) : m_path(decoder.m_path) { m_path.push_back(part); }
    ~Step() { m_path.pop_back(); }
    Q_DISABLE_COPY_MOVE(Step)

private:
    std::vector<Part> &m_path;
};

template <typename Record>
ADFDecoder::Result<Record> ADFDecoder::record(const Element &element)
{
    simdjson::dom::object members;
    if (element.get(members))
        return failure(u"objet attendu"_s);
    Record result;
    bool typed = false;
    for (const auto &[name, value] : members) {
        if (value.is_null())
            continue;
        const Step step(*this, {name});
        if (auto read = readMember(result, name, value); !read)
            return std::unexpected(std::move(read.error()));
        typed = typed || name == "type";
    }
    if (typed)
        return result;
    const Step step(*this, {"type"});
    return failure(u"absent"_s);
}

ADFDecoder::Result<ADFNode> ADFDecoder::node(const Element &element)
{
    if (m_depth >= m_maximumDepth)
        return failure(u"imbrication trop profonde"_s);
    ++m_depth;
    auto result = record<ADFNode>(element);
    --m_depth;
    return result;
}

ADFDecoder::Result<void> ADFDecoder::readMember(ADFNode &node, std::string_view name,
                                                const Element &element)
{
    if (name == "type")
        return store(node.type, text(element));
    if (name == "text")
        return store(node.text, text(element));
    if (name == "content")
        return store(node.content, list(element, &ADFDecoder::node));
    if (name == "marks")
        return store(node.marks, list(element, &ADFDecoder::mark));
    if (name == "attrs")
        return store(node.attrs, object(element));
    if (name == "version")
        return store(node.version, integer(element));
    return {};
}

ADFDecoder::Result<ADFMark> ADFDecoder::mark(const Element &element)
{
    return record<ADFMark>(element);
}

ADFDecoder::Result<void> ADFDecoder::readMember(ADFMark &mark, std::string_view name,
                                                const Element &element)
{
    if (name == "type")
        return store(mark.type, text(element));
    if (name == "attrs")
        return store(mark.attrs, object(element));
    return {};
}

ADFDecoder::Result<JSONValue> ADFDecoder::value(const Element &element)
{
    if (m_depth >= m_maximumDepth)
        return failure(u"imbrication trop profonde"_s);
    ++m_depth;
    JSONValue result;
    Result<void> read;
    switch (element.type()) {
    case simdjson::dom::element_type::NULL_VALUE:
        break;
    case simdjson::dom::element_type::BOOL:
        result = bool(element.get_bool().value_unsafe());
        break;
    case simdjson::dom::element_type::INT64:
    case simdjson::dom::element_type::UINT64:
    case simdjson::dom::element_type::DOUBLE:
        result = double(element.get_double().value_unsafe());
        break;
    case simdjson::dom::element_type::STRING:
        read = store(result, text(element));
        break;
    case simdjson::dom::element_type::ARRAY:
        read = store(result, array(element));
        break;
    case simdjson::dom::element_type::OBJECT:
        read = store(result, object(element));
        break;
    }
    --m_depth;
    if (!read)
        return std::unexpected(std::move(read.error()));
    return result;
}

ADFDecoder::Result<QString> ADFDecoder::text(const Element &element)
{
    std::string_view utf8;
    if (element.get(utf8))
        return failure(u"texte attendu"_s);
    return toText(utf8);
}

ADFDecoder::Result<int> ADFDecoder::integer(const Element &element)
{
    double number = 0;
    if (element.get(number) || number != std::trunc(number))
        return failure(u"nombre entier attendu"_s);
    if (number < std::numeric_limits<int>::min() || number > std::numeric_limits<int>::max())
        return failure(u"nombre trop grand"_s);
    return int(number);
}

ADFDecoder::Result<ADFAttributes> ADFDecoder::object(const Element &element)
{
    simdjson::dom::object members;
    if (element.get(members))
        return failure(u"objet attendu"_s);
    ADFAttributes result;
    for (const auto &[name, member] : members) {
        const Step step(*this, {name});
        auto read = value(member);
        if (!read)
            return std::unexpected(std::move(read.error()));
        result.insert(toText(name), *read);
    }
    return result;
}

ADFDecoder::Result<JSONValue::Array> ADFDecoder::array(const Element &element)
{
    return list(element, &ADFDecoder::value);
}

template <typename Item>
ADFDecoder::Result<QList<Item>> ADFDecoder::list(const Element &element,
                                                 Result<Item> (ADFDecoder::*read)(const Element &))
{
    simdjson::dom::array items;
    if (element.get(items))
        return failure(u"liste attendue"_s);
    QList<Item> result;
    for (const auto &item : items) {
        const Step step(*this, {{}, result.size()});
        auto value = (this->*read)(item);
        if (!value)
            return std::unexpected(std::move(value.error()));
        result.append(std::move(*value));
    }
    return result;
}

std::unexpected<DecodingError> ADFDecoder::failure(QString message) const
{
    QString place;
    for (const Part &part : m_path) {
        if (part.index >= 0)
            place += u"[%1]"_s.arg(part.index);
        else
            place += (place.isEmpty() ? u""_s : u"."_s) + toText(part.name);
    }
    return std::unexpected(DecodingError{place, std::move(message)});
}

std::expected<ADFNode, DecodingError> ADFCoding::decodeNode(const QByteArray &json)
{
    simdjson::dom::parser parser;
    const auto root = parsed(parser, json);
    return root ? decodeNode(*root) : std::unexpected(root.error());
}

std::expected<ADFNode, DecodingError> ADFCoding::decodeNode(const simdjson::dom::element &element)
{
    return ADFDecoder(maximumDepth).node(element);
}

std::expected<JSONValue, DecodingError> ADFCoding::decodeValue(const QByteArray &json)
{
    simdjson::dom::parser parser;
    const auto root = parsed(parser, json);
    return root ? decodeValue(*root) : std::unexpected(root.error());
}

std::expected<JSONValue, DecodingError>
ADFCoding::decodeValue(const simdjson::dom::element &element)
{
    return ADFDecoder(maximumValueDepth).value(element);
}
