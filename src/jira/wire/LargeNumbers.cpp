#include "jira/wire/LargeNumbers.h"

#include <QRegularExpression>

namespace {

constexpr QByteArrayView Largest = "1.7976931348623157e308";
/// Integers with fewer digits always fit into 64 bits.
constexpr qsizetype SafeDigits = 18;

bool isPartOfNumber(char character)
{
    return (character >= '0' && character <= '9') || QByteArrayView("+-.eE").contains(character);
}

bool isNumber(const QByteArray &token)
{
    static const QRegularExpression grammar(
        QStringLiteral("\\A-?(0|[1-9][0-9]*)(\\.[0-9]+)?([eE][+-]?[0-9]+)?\\z"));
    return grammar.match(QString::fromLatin1(token)).hasMatch();
}

QByteArray bounded(const QByteArray &token)
{
    if (token.size() <= SafeDigits && !token.contains('e') && !token.contains('E'))
        return token;
    if (!isNumber(token))
        return token;
    bool isInRange = false;
    token.toDouble(&isInRange);
    if (!isInRange)
        return (token.startsWith('-') ? "-" : "") + Largest.toByteArray();
    const bool isInteger = !token.contains('.') && !token.contains('e') && !token.contains('E');
    return isInteger ? token + "e0" : token;
}

/// The index behind the text that begins with a quotation mark at `start`.
qsizetype endOfText(const QByteArray &json, qsizetype start)
{
    qsizetype at = start + 1;
    while (at < json.size() && json[at] != '"')
        at += json[at] == '\\' ? 2 : 1;
    return std::min(at + 1, json.size());
}

qsizetype endOfNumber(const QByteArray &json, qsizetype start)
{
    qsizetype at = start;
    while (at < json.size() && isPartOfNumber(json[at]))
        ++at;
    return at;
}

} // namespace

QByteArray LargeNumbers::bounded(const QByteArray &json)
{
    QByteArray result;
    result.reserve(json.size());
    for (qsizetype at = 0; at < json.size();) {
        const char first = json[at];
        if (first == '"') {
            const qsizetype end = endOfText(json, at);
            result += QByteArrayView(json).sliced(at, end - at);
            at = end;
        } else if (first == '-' || (first >= '0' && first <= '9')) {
            const qsizetype end = endOfNumber(json, at);
            result += ::bounded(json.sliced(at, end - at));
            at = end;
        } else {
            result += first;
            ++at;
        }
    }
    return result;
}
