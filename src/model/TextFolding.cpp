#include "model/TextFolding.h"

#include <array>

using namespace Qt::StringLiterals;

namespace {

bool isCombiningMark(QChar c)
{
    const char16_t code = c.unicode();
    return (code >= 0x0300 && code <= 0x036F) || (code >= 0x1AB0 && code <= 0x1AFF) ||
           (code >= 0x1DC0 && code <= 0x1DFF) || (code >= 0x20D0 && code <= 0x20FF);
}

/// True for "ß" and for the ligatures "ﬀ" to "ﬆ", whose folded form has more than one letter.
bool isSeveralLetters(QChar c)
{
    const char16_t code = c.unicode();
    return code == 0x00DF || (code >= 0xFB00 && code <= 0xFB06);
}

QString caseFolded(const QString &text)
{
    QString result;
    result.reserve(text.size());
    for (const QChar c : text.toCaseFolded())
        result += isSeveralLetters(c) ? QString(c).toUpper().toLower() : QString(c);
    return result;
}

QString foldedByDecomposition(QStringView text)
{
    QString result = text.toString().normalized(QString::NormalizationForm_D);
    result.removeIf(isCombiningMark);
    // Compose the text again, for scripts in which the decomposed marks and syllables are not diacritics.
    return caseFolded(result).normalized(QString::NormalizationForm_C);
}

/// The end of the table of folded characters. The table covers French and the other Western European languages, so that
/// folding them is a look-up for most characters.
constexpr char16_t tableEnd = 0x0180;

/// The folded form of each character that folds to exactly one character; 0 for the others.
using FoldTable = std::array<char16_t, tableEnd>;

FoldTable makeFoldTable()
{
    FoldTable table{};
    for (char16_t code = 0; code < tableEnd; ++code) {
        const QChar character(code);
        const QString fold = foldedByDecomposition(QStringView(&character, 1));
        table[code] = fold.size() == 1 ? fold[0].unicode() : u'\0';
    }
    return table;
}

/// True for the dashes, quotation marks and dots of typeset text, which fold to themselves.
bool isTypographicSign(char16_t code)
{
    return code >= 0x2010 && code <= 0x2027;
}

/// The folded form of a single character, or 0 if it must be computed by decomposition.
char16_t quickFold(char16_t code)
{
    static const FoldTable table = makeFoldTable();
    if (code < tableEnd)
        return table[code];
    return isTypographicSign(code) ? code : u'\0';
}

bool isAsciiAlphanumeric(char32_t scalar)
{
    return (scalar >= U'a' && scalar <= U'z') || (scalar >= U'A' && scalar <= U'Z') ||
           (scalar >= U'0' && scalar <= U'9');
}

QString withoutTrailingDashes(QString text)
{
    while (text.endsWith(u'-'))
        text.chop(1);
    return text;
}

QString withDashesForOtherSigns(const QString &text)
{
    QString result;
    for (const QChar c : text) {
        if (isAsciiAlphanumeric(c.unicode()))
            result += c;
        else if (!result.isEmpty() && !result.endsWith(u'-'))
            result += u'-';
    }
    return withoutTrailingDashes(result);
}

} // namespace

QString folded(QStringView text)
{
    QString result(text.size(), Qt::Uninitialized);
    QChar *out = result.data();
    for (const QChar c : text) {
        const char16_t fold = quickFold(c.unicode());
        if (fold == u'\0')
            return foldedByDecomposition(text);
        *out++ = fold;
    }
    return result;
}

QString foldedForSearch(QStringView text)
{
    QString result = folded(text);
    // To look for a letter costs far less than to prepare its replacement, and most texts have neither.
    if (result.contains(u'œ'))
        result.replace(u'œ', "oe"_L1);
    if (result.contains(u'æ'))
        result.replace(u'æ', "ae"_L1);
    return result;
}

bool localizedContains(QStringView haystack, QStringView needle)
{
    return !needle.isEmpty() && foldedForSearch(haystack).contains(foldedForSearch(needle));
}

QString slugified(QStringView text)
{
    constexpr qsizetype longest = 48;
    return withoutTrailingDashes(withDashesForOtherSigns(folded(text)).left(longest));
}

int stableHash(QStringView text)
{
    quint64 hash = 5381;
    for (const char32_t scalar : text.toUcs4())
        hash = hash * 33 + scalar;
    return int(hash % 2147483647);
}
