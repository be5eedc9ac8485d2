#include "model/text/VisibleText.h"

#include <QList>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

struct Range
{
    char32_t first;
    char32_t last;
};

template <typename Ranges>
bool isIn(const Ranges &ranges, char32_t character)
{
    return std::ranges::any_of(ranges, [=](const Range &range) {
        return range.first <= character && character <= range.last;
    });
}

/// Characters that are invisible although their category is that of letters, marks or symbols, and unassigned ones that
/// Unicode reserves for invisible characters (the property Default_Ignorable_Code_Point, and the blank of Braille).
constexpr std::array invisibleRanges{
    Range{0x034F, 0x034F}, Range{0x115F, 0x1160}, Range{0x17B4, 0x17B5},   Range{0x180B, 0x180F},
    Range{0x2065, 0x2065}, Range{0x2800, 0x2800}, Range{0x3164, 0x3164},   Range{0xFE00, 0xFE0F},
    Range{0xFFA0, 0xFFA0}, Range{0xFFF0, 0xFFF8}, Range{0xE0000, 0xE0FFF},
};

/// Signs of the category of format characters that are drawn: Arabic, Syriac and Kaithi number signs.
constexpr std::array drawnFormats{
    Range{0x0600, 0x0605}, Range{0x06DD, 0x06DD},   Range{0x070F, 0x070F},   Range{0x0890, 0x0891},
    Range{0x08E2, 0x08E2}, Range{0x110BD, 0x110BD}, Range{0x110CD, 0x110CD},
};

constexpr char32_t nonJoiner = 0x200C;
constexpr char32_t joiner = 0x200D;
constexpr char32_t textSelector = 0xFE0E;
constexpr char32_t emojiSelector = 0xFE0F;
constexpr char32_t keycap = 0x20E3;
constexpr char32_t blackFlag = 0x1F3F4;
constexpr char32_t endOfTags = 0xE007F;

bool isInvisible(char32_t character)
{
    switch (QChar::category(character)) {
    case QChar::Other_Control:
    case QChar::Other_Surrogate:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
        return true;
    case QChar::Other_Format:
        return !isIn(drawnFormats, character);
    default:
        return isIn(invisibleRanges, character);
    }
}

/// The characters of a text, with those around the current one.
class Characters
{
public:
    /// Unpaired surrogates are characters of their own.
    explicit Characters(const QString &text)
    {
        m_all.reserve(text.size());
        for (qsizetype i = 0; i < text.size(); ++i) {
            const bool isPair =
                text[i].isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate();
            m_all.append(isPair ? QChar::surrogateToUcs4(text[i], text[i + 1]) : text[i].unicode());
            i += isPair ? 1 : 0;
        }
    }

    qsizetype size() const { return m_all.size(); }
    /// The character at a position; 0 outside the text.
    char32_t at(qsizetype index) const { return m_all.value(index, 0); }

private:
    QList<char32_t> m_all;
};

bool usesJoiners(QChar::Script script)
{
    return script == QChar::Script_Arabic || script == QChar::Script_Syriac ||
           script == QChar::Script_Mongolian || script == QChar::Script_Nko ||
           (script >= QChar::Script_Devanagari && script <= QChar::Script_Sinhala);
}

bool isLetterOrMark(char32_t character)
{
    return QChar::isLetter(character) || QChar::isMark(character);
}

/// True for pictographs, and for the modifiers and selectors that may follow them.
bool isEmojiPart(char32_t character)
{
    return QChar::category(character) == QChar::Symbol_Other || character == emojiSelector ||
           (character >= 0x1F3FB && character <= 0x1F3FF);
}

bool joins(char32_t character, char32_t previous, char32_t next)
{
    if (character == joiner && isEmojiPart(previous) && isEmojiPart(next))
        return true;
    return (character == joiner || character == nonJoiner) && isLetterOrMark(previous) &&
           isLetterOrMark(next) && usesJoiners(QChar::script(previous)) &&
           QChar::script(previous) == QChar::script(next);
}

bool selectsVariant(char32_t character, char32_t previous, char32_t next)
{
    const auto category = QChar::category(previous);
    const bool isSelector = (character >= 0xFE00 && character <= emojiSelector) ||
                            (character >= 0xE0100 && character <= 0xE01EF);
    if (isSelector && QChar::script(previous) == QChar::Script_Han)
        return true;
    if (character == emojiSelector && next == keycap)
        return (previous >= U'0' && previous <= U'9') || previous == U'#' || previous == U'*';
    const bool isSymbol =
        previous > 0x7F && (category == QChar::Symbol_Other || category == QChar::Symbol_Math ||
                            category == QChar::Punctuation_Other);
    return (character == textSelector || character == emojiSelector) && isSymbol;
}

/// The number of tags that turn the flag at `flag` into that of a region; 0 if they are not complete.
qsizetype flagTags(const Characters &characters, qsizetype flag)
{
    constexpr qsizetype longest = 8;
    for (qsizetype count = 1; count <= longest; ++count) {
        const char32_t tag = characters.at(flag + count);
        if (tag == endOfTags)
            return count > 1 ? count : 0;
        const bool isLetterOrDigit =
            (tag >= 0xE0061 && tag <= 0xE007A) || (tag >= 0xE0030 && tag <= 0xE0039);
        if (!isLetterOrDigit)
            return 0;
    }
    return 0;
}

/// Calls `show` or `replace` for each character.
template <typename Show, typename Replace>
void examine(const QString &text, const Show &show, const Replace &replace)
{
    const Characters characters(text);
    qsizetype tags = 0;
    for (qsizetype i = 0; i < characters.size(); ++i) {
        const char32_t character = characters.at(i);
        const char32_t previous = characters.at(i - 1);
        const char32_t next = characters.at(i + 1);
        const bool isTag = tags > 0;
        tags = character == blackFlag ? flagTags(characters, i) : std::max<qsizetype>(tags - 1, 0);
        if (isTag || !isInvisible(character) || joins(character, previous, next) ||
            selectsVariant(character, previous, next))
            show(character);
        else
            replace(character);
    }
}

bool mayBeInvisible(QChar character)
{
    return character.isSurrogate() || isInvisible(character.unicode());
}

} // namespace

QString visibleText(const QString &text)
{
    if (std::ranges::none_of(text, mayBeInvisible))
        return text;
    QString result;
    const auto show = [&](char32_t character) { result += QChar::fromUcs4(character); };
    const auto replace = [&](char32_t character) {
        result += u"[U+%1]"_s.arg(uint(character), 4, 16, QChar(u'0')).toUpper();
    };
    examine(text, show, replace);
    return result;
}

QString withoutInvisible(const QString &text)
{
    QString result;
    const auto show = [&](char32_t character) { result += QChar::fromUcs4(character); };
    examine(text, show, [](char32_t) {});
    return result;
}
