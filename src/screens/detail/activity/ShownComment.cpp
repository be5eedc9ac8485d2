#include "screens/detail/activity/ShownComment.h"

#include "model/dates/DateLabels.h"
#include "model/dates/DateParts.h"
#include "richtext/ADFQueries.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// A document of empty paragraphs would take space and show nothing.
bool showsSomething(const ADFNode &node)
{
    if (node.type == "text"_L1)
        return !node.text.value_or(QString()).trimmed().isEmpty();
    if (node.type != "doc"_L1 && node.type != "paragraph"_L1)
        return node.type != "hardBreak"_L1;
    return node.content && std::ranges::any_of(*node.content, showsSomething);
}

QString sentenceOf(const ShownComment &comment, const QString &ago)
{
    QString sentence = comment.name + u" a commenté"_s;
    if (!ago.isEmpty())
        sentence += u' ' + ago;
    if (!comment.readers.spoken.isEmpty())
        sentence += u", "_s + comment.readers.spoken;
    return sentence;
}

} // namespace

ShownComment ShownComment::of(const Comment &comment, ProjectKind project, const QDateTime &now,
                              const UserCalendar &calendar)
{
    const QString nobody = u"Inconnu"_s;
    ShownComment shown;
    shown.key = comment.id;
    shown.hasAuthor = comment.author.has_value();
    if (comment.author)
        shown.author = withShownName(*comment.author, nobody);
    shown.name = comment.author ? shown.author.name : nobody;
    shown.readers = CommentReaders::of(comment, project);
    shown.isNote = ::isNote(comment);
    QString ago;
    if (comment.created.isValid()) {
        shown.age = compactRelative(comment.created, now, calendar);
        shown.date = longDateAndTime(comment.created, calendar);
        ago = agoText(comment.created, now, calendar);
    }
    shown.sentence = sentenceOf(shown, ago);
    shown.hasReferences = !comment.attachmentIDs.isEmpty();
    if (comment.body) {
        shown.body = *comment.body;
        shown.hasBody = showsSomething(shown.body);
        shown.hasReferences = shown.hasReferences || !ADF::linkURLs(shown.body).isEmpty();
    }
    return shown;
}

JiraUser withShownName(const JiraUser &user, const QString &fallback)
{
    JiraUser shown = user;
    shown.name = user.name.trimmed().isEmpty() ? fallback : user.name;
    return shown;
}

QString longDateAndTime(const QDateTime &date, const UserCalendar &calendar)
{
    if (!date.isValid())
        return {};
    const QLocale &locale = calendar.locale;
    const QString time =
        locale.toString(date.toTimeZone(calendar.zone).time(), QLocale::ShortFormat);
    const QString joint = locale.language() == QLocale::French ? u" à "_s : u", "_s;
    return dayMonthAndYear(calendar.day(date), locale) + joint + time;
}
