#pragma once

#include "model/ADFNode.h"
#include "model/JSONValue.h"
#include "richtext/DecodingError.h"

#include <QByteArray>

#include <expected>

namespace simdjson::dom {
class element;
}

/// Converts documents and generic values to and from JSON. The names of the JSON members are those of the records.
namespace ADFCoding {

/// The maximum nesting depth of a document, counting nodes and also values inside the attributes of a node. Real
/// documents use less than twenty levels; the limit keeps recursive functions over a decoded tree within the stack.
inline constexpr int maximumDepth = 256;
/// The maximum nesting depth of a generic value. It is sufficient for every document that was decoded: each node takes
/// two levels, one for the node and one for the array that contains it.
inline constexpr int maximumValueDepth = 2 * maximumDepth + 2;

/// Decodes a document. `type` is required; a JSON null counts as absent; unknown members are dropped. Fails for
/// anything that is not strict JSON in UTF-8 (including an escaped unpaired surrogate, and numbers beyond the range of
/// a double), for a member of the wrong type at any depth, and for nesting beyond `maximumDepth`.
std::expected<ADFNode, DecodingError> decodeNode(const QByteArray &json);
/// The same for a part of a response that is already parsed; positions in the error are relative to `element`.
std::expected<ADFNode, DecodingError> decodeNode(const simdjson::dom::element &element);

/// Decodes any JSON value; every number becomes a double. Fails as `decodeNode` does, with the limit
/// `maximumValueDepth`.
std::expected<JSONValue, DecodingError> decodeValue(const QByteArray &json);
std::expected<JSONValue, DecodingError> decodeValue(const simdjson::dom::element &element);

/// Encodes as compact JSON in UTF-8. The members have the order type, text, content, marks, attrs, version, and absent
/// ones are omitted. An integer is written without a fraction (2, never 2.0), any other number in its shortest decimal
/// form. Attributes are sorted by name. What JSON cannot represent is replaced: an unpaired surrogate by U+FFFD, a
/// number that is not finite by null.
QByteArray encode(const ADFNode &node);
/// The same format for a generic value.
QByteArray encode(const JSONValue &value);

/// Converts the node to a generic value, for use in a request body; null if it nests deeper than `maximumValueDepth`,
/// which does not happen for documents that were decoded or made from Markdown.
JSONValue jsonValueFrom(const ADFNode &node);

} // namespace ADFCoding
