#include "model/dates/DateParts.h"

#include <QStringList>

#include <algorithm>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

/// A piece of a date pattern: a field with its letters ("d", "MMMM"), or a literal text.
struct Piece
{
    QStringView field;
    QString literal;

    QChar letter() const { return field.isEmpty() ? QChar() : field.front(); }
    bool isLiteral() const { return field.isEmpty(); }
    /// Three or more letters "d" stand for the name of the weekday.
    bool isWeekday() const { return letter() == u'd' && field.size() > 2; }
};

/// Which fields of a date to print, given as letters ("dM", "dMy"; "E" is the weekday), and the format of the month.
struct Style
{
    QStringView fields;
    QLocale::FormatType month;
};

bool isFieldLetter(QChar c)
{
    return c == u'd' || c == u'M' || c == u'y';
}

void appendLiteral(std::vector<Piece> &pieces, QStringView text)
{
    if (pieces.empty() || !pieces.back().isLiteral())
        pieces.push_back({});
    pieces.back().literal += text;
}

qsizetype runLength(QStringView text)
{
    qsizetype length = 1;
    while (length < text.size() && text[length] == text[0])
        ++length;
    return length;
}

/// The length of the quoted literal at the start of `text`, including both quotes.
qsizetype quotedLength(QStringView text)
{
    const qsizetype end = text.indexOf(u'\'', 1);
    return end < 0 ? text.size() : end + 1;
}

std::vector<Piece> parsed(QStringView pattern)
{
    std::vector<Piece> pieces;
    while (!pattern.isEmpty()) {
        const QChar head = pattern.front();
        qsizetype length = 1;
        if (head == u'\'') {
            length = quotedLength(pattern);
            appendLiteral(pieces, pattern.first(length).sliced(1).chopped(length > 1 ? 1 : 0));
        } else if (isFieldLetter(head)) {
            length = runLength(pattern);
            pieces.push_back({pattern.first(length), {}});
        } else {
            appendLiteral(pieces, pattern.first(1));
        }
        pattern = pattern.sliced(length);
    }
    return pieces;
}

/// The letters at the start of a literal. They belong to the field before the literal, as in "d日".
QString suffix(const QString &literal)
{
    const auto end = std::ranges::find_if_not(literal, [](QChar c) { return c.isLetter(); });
    return literal.left(end - literal.begin());
}

/// The pieces from the first requested field to the last one. A field that was not requested is dropped together with
/// the literal that follows it.
std::vector<Piece> selected(const std::vector<Piece> &pieces, QStringView fields)
{
    std::vector<Piece> result;
    bool isWanted = false;
    for (const Piece &piece : pieces) {
        if (!piece.isLiteral())
            isWanted = fields.contains(piece.isWeekday() ? u'E' : piece.letter());
        if (isWanted)
            result.push_back(piece);
    }
    const bool endsEarly = !isWanted && !result.empty() && result.back().isLiteral();
    if (endsEarly)
        result.back().literal = suffix(result.back().literal);
    return result;
}

QString printedMonth(QStringView field, int month, const Style &style, const QLocale &locale)
{
    // In a field of one or two letters, the language writes months as numbers.
    if (field.size() <= 2)
        return locale.toString(month);
    return style.fields.contains(u'd') ? locale.monthName(month, style.month)
                                       : locale.standaloneMonthName(month, style.month);
}

QString printed(QStringView field, const QDate &day, const Style &style, const QLocale &locale)
{
    if (field.startsWith(u'M'))
        return printedMonth(field, day.month(), style, locale);
    if (field.startsWith(u'd'))
        return locale.toString(day, field.size() > 2 ? u"dddd" : u"d");
    return locale.toString(day, u"yyyy");
}

QString printed(const QDate &day, const Style &style, const QLocale &locale)
{
    if (!day.isValid())
        return {};
    const QString pattern = locale.dateFormat(QLocale::LongFormat);
    QString text;
    for (const Piece &piece : selected(parsed(pattern), style.fields))
        text += piece.isLiteral() ? piece.literal : printed(piece.field, day, style, locale);
    return text.trimmed();
}

QString capitalized(const QString &word, const QLocale &locale)
{
    return locale.toUpper(word.left(1)) + locale.toLower(word.mid(1));
}

} // namespace

QString dayAndShortMonth(const QDate &day, const QLocale &locale)
{
    return printed(day, {u"dM", QLocale::ShortFormat}, locale);
}

QString dayAndMonth(const QDate &day, const QLocale &locale)
{
    return printed(day, {u"dM", QLocale::LongFormat}, locale);
}

QString weekdayDayAndMonth(const QDate &day, const QLocale &locale)
{
    return printed(day, {u"EdM", QLocale::LongFormat}, locale);
}

QString dayShortMonthAndYear(const QDate &day, const QLocale &locale)
{
    return printed(day, {u"dMy", QLocale::ShortFormat}, locale);
}

QString dayMonthAndYear(const QDate &day, const QLocale &locale)
{
    return printed(day, {u"dMy", QLocale::LongFormat}, locale);
}

QString monthAndYear(const QDate &day, const QLocale &locale)
{
    return printed(day, {u"My", QLocale::LongFormat}, locale);
}

QString capitalizedWords(const QString &text, const QLocale &locale)
{
    QStringList words = text.split(u' ');
    for (QString &word : words)
        word = capitalized(word, locale);
    return words.join(u' ');
}
