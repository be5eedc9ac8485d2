#pragma once

#include "model/ADFNode.h"
#include "model/JSONValue.h"
#include "richtext/DecodingError.h"

#include <QByteArray>

#include <expected>

namespace simdjson::dom {
class element;
}

/// Documents and generic values from and to JSON. The member names are those of the records.
namespace ADFCoding {

/// How deep a document may nest: a node inside a node and a value inside a value of its attributes each count one.
/// Real documents stay below twenty; the bound keeps every recursive walk of a decoded tree within the stack.
inline constexpr int maximumDepth = 256;
/// How deep a generic value may nest: enough for any document that was read, whose nodes then stand in arrays of their
/// own.
inline constexpr int maximumValueDepth = 2 * maximumDepth + 2;

/// Reads a document. `type` is required; a JSON null counts as absent; unknown members are dropped. Fails on anything
/// that is not strict JSON in UTF-8 (including half a surrogate pair in an escape, and numbers beyond a double), on a
/// member of the wrong kind at any depth, and on nesting beyond `maximumDepth`.
std::expected<ADFNode, DecodingError> decodeNode(const QByteArray &json);
/// The same for a part of an answer that is already parsed; places in the error are relative to `element`.
std::expected<ADFNode, DecodingError> decodeNode(const simdjson::dom::element &element);

/// Reads any JSON value; every number becomes a double. Fails as `decodeNode` does, beyond `maximumValueDepth`.
std::expected<JSONValue, DecodingError> decodeValue(const QByteArray &json);
std::expected<JSONValue, DecodingError> decodeValue(const simdjson::dom::element &element);

/// Compact JSON in UTF-8 with the members in the order type, text, content, marks, attrs, version, each only when
/// present. A whole number has no fractional part (2, never 2.0), any other its shortest decimal form. Attributes go by
/// name. What JSON cannot say is replaced: half a surrogate pair by U+FFFD, a number that is not finite by null.
QByteArray encode(const ADFNode &node);
QByteArray encode(const JSONValue &value);

/// The node as a generic value, for a request body; null when that nests deeper than
/// `maximumValueDepth`, which no document does that was read or came from Markdown.
JSONValue jsonValueFrom(const ADFNode &node);

} // namespace ADFCoding
