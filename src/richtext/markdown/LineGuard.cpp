#include "richtext/markdown/LineGuard.h"

#include "richtext/ValidText.h"

namespace {

constexpr QByteArrayView edgeBytes("\xC2\xA0");

/// A replacement for one character. Its two characters belong to the same class as the replaced one (punctuation or
/// white space), so that the rules for emphasis give the same result. If the first character of a pair occurs in the
/// text itself, it is doubled.
struct Pair
{
    char plain;
    char first;
    char second;
};
constexpr Pair tilde{'~', '{', '}'};
constexpr Pair carriageReturn{'\r', '\v', '\f'};

/// The length of the sequence of equal bytes that begins at `start`.
qsizetype runLength(const QByteArray &text, qsizetype start)
{
    qsizetype end = start;
    while (end < text.size() && text[end] == text[start])
        ++end;
    return end - start;
}

void append(QByteArray &result, Pair pair)
{
    result.append(pair.first).append(pair.second);
}

/// Appends a byte of the text; doubles it if it is the first character of a pair.
void appendPlain(QByteArray &result, char byte)
{
    if (byte == carriageReturn.plain)
        return append(result, carriageReturn);
    result.append(byte);
    if (byte == tilde.first || byte == carriageReturn.first)
        result.append(byte);
}

void appendTildes(QByteArray &result, qsizetype count)
{
    if (count == 1)
        return append(result, tilde);
    result.append(count, tilde.plain);
}

/// Appends the encoded form of a line. A "~" after a backslash is copied and does not count as part of a sequence.
void appendMarkup(QByteArray &result, const QByteArray &line)
{
    for (qsizetype i = 0; i < line.size(); ++i) {
        if (line[i] == tilde.plain) {
            const qsizetype count = runLength(line, i);
            appendTildes(result, count);
            i += count - 1;
        } else {
            appendPlain(result, line[i]);
            if (line[i] == '\\' && i + 1 < line.size() &&
                (line[i + 1] == '\\' || line[i + 1] == tilde.plain))
                result.append(line[++i]);
        }
    }
}

char meaning(char first, char second)
{
    for (const Pair pair : {tilde, carriageReturn}) {
        if (first == pair.first && second == pair.second)
            return pair.plain;
    }
    return first;
}

} // namespace

QByteArray LineGuard::guarded(QStringView line)
{
    QByteArray text = validUTF8(line);
    text.replace(QByteArrayView("\0", 1), QByteArrayView("\xEF\xBF\xBD"));
    QByteArray result;
    result.reserve(text.size() + text.size() / 8 + 8);
    result += edgeBytes;
    appendMarkup(result, text);
    result += edgeBytes;
    // The parser reads one byte beyond an incomplete link at the end of its input.
    result += '\n';
    return result;
}

QByteArray LineGuard::dressed(const QByteArray &text)
{
    QByteArray result;
    for (const char byte : text)
        appendPlain(result, byte);
    return result;
}

QString LineGuard::undressed(const QByteArray &text)
{
    QByteArray result;
    result.reserve(text.size());
    for (qsizetype i = 0; i < text.size(); ++i) {
        const bool isPair = text[i] == tilde.first || text[i] == carriageReturn.first;
        const bool isWhole = isPair && i + 1 < text.size();
        result.append(isWhole ? meaning(text[i], text[i + 1]) : text[i]);
        i += isWhole ? 1 : 0;
    }
    return QString::fromUtf8(result);
}
