#include "richtext/markdown/LineGuard.h"

#include "richtext/ValidText.h"

namespace {

constexpr QByteArrayView edgeBytes("\xC2\xA0");

/// The pairs are of the same class as what they stand for (punctuation, white space), so that the rules of emphasis
/// see no difference. The first of a pair, standing for itself, is doubled.
struct Pair
{
    char plain;
    char first;
    char second;
};
constexpr Pair tilde{'~', '{', '}'};
constexpr Pair carriageReturn{'\r', '\v', '\f'};

/// The length of the run of the byte at `start`.
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

/// Appends a byte of a text, doubled when it is the first of a pair.
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

/// The markup of a line, dressed. A backslash takes the byte behind it out of any run.
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
    // The parser looks one byte beyond a link that breaks off at the end of its input.
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
