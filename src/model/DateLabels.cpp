#include "model/DateLabels.h"

#include <QStringList>

#include <optional>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

/// A piece of a date pattern: the letter of its field, or a null letter and a literal text.
struct Piece
{
    QChar field;
    QString literal;
};

/// What to print of a date, by the letters of a pattern ("dM", "dMy"), and how to write the month.
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
    if (pieces.empty() || !pieces.back().field.isNull())
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

/// The length of a quoted literal with both its quotes.
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
            // From three letters on it is the name of the weekday.
            const bool isWeekday = head == u'd' && length > 2;
            pieces.push_back({isWeekday ? QChar(u'E') : head, {}});
        } else {
            appendLiteral(pieces, pattern.first(1));
        }
        pattern = pattern.sliced(length);
    }
    return pieces;
}

/// The pieces from the first to the last wanted field. A field between them that is not wanted goes, with what follows
/// it; signs at the pattern's end stay when they belong to a wanted field, as in "d日".
std::vector<Piece> selected(const std::vector<Piece> &pieces, QStringView fields)
{
    std::vector<Piece> result;
    bool isWanted = false;
    for (const Piece &piece : pieces) {
        if (!piece.field.isNull())
            isWanted = fields.contains(piece.field);
        if (isWanted)
            result.push_back(piece);
    }
    const bool endsWithPattern = isWanted;
    if (!endsWithPattern && !result.empty() && result.back().field.isNull())
        result.pop_back();
    return result;
}

QString printed(QChar field, const QDate &day, const Style &style, const QLocale &locale)
{
    if (field == u'd')
        return locale.toString(day, u"d");
    if (field == u'y')
        return locale.toString(day, u"yyyy");
    return style.fields.contains(u'd') ? locale.monthName(day.month(), style.month)
                                       : locale.standaloneMonthName(day.month(), style.month);
}

QString printed(const QDate &day, const Style &style, const QLocale &locale)
{
    if (!day.isValid())
        return {};
    QString text;
    for (const Piece &piece :
         selected(parsed(locale.dateFormat(QLocale::LongFormat)), style.fields))
        text += piece.field.isNull() ? piece.literal : printed(piece.field, day, style, locale);
    return text.trimmed();
}

QString capitalized(const QString &word, const QLocale &locale)
{
    return locale.toUpper(word.left(1)) + locale.toLower(word.mid(1));
}

} // namespace

QString compactRelative(const QDateTime &date, const QDateTime &now, const UserCalendar &calendar)
{
    constexpr qint64 minute = 60;
    constexpr qint64 hour = 60 * minute;
    constexpr qint64 day = 24 * hour;
    constexpr qint64 week = 7 * day;

    const qint64 seconds = date.secsTo(now);
    if (seconds < minute)
        return u"à l'instant"_s;
    if (seconds < hour)
        return QString::number(seconds / minute) + " min"_L1;
    if (seconds < day)
        return QString::number(seconds / hour) + " h"_L1;
    if (seconds < week)
        return QString::number(seconds / day) + " j"_L1;
    return dayAndShortMonth(calendar.day(date), calendar.locale);
}

QString dueLabel(const QDate &day, const QDateTime &now, const UserCalendar &calendar)
{
    switch (calendar.day(now).daysTo(day)) {
    case 0:
        return u"Aujourd'hui"_s;
    case 1:
        return u"Demain"_s;
    case -1:
        return u"Hier"_s;
    default:
        return dayAndShortMonth(day, calendar.locale);
    }
}

QString dayAndShortMonth(const QDate &day, const QLocale &locale)
{
    return printed(day, {u"dM", QLocale::ShortFormat}, locale);
}

QString dayAndMonth(const QDate &day, const QLocale &locale)
{
    return printed(day, {u"dM", QLocale::LongFormat}, locale);
}

QString dayShortMonthAndYear(const QDate &day, const QLocale &locale)
{
    return printed(day, {u"dMy", QLocale::ShortFormat}, locale);
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
