#include "simulator/jql/JqlDates.h"

using namespace Qt::StringLiterals;

namespace {

std::optional<QDateTime> relativeInstant(const Site &site, const QString &text)
{
    static const QHash<QChar, int> seconds = {
        {u'm', 60}, {u'h', 3600}, {u'd', 86'400}, {u'w', 604'800}};
    bool isNumber = false;
    const int count = text.chopped(1).toInt(&isNumber);
    const int unit = seconds.value(text.back(), 0);
    if (!isNumber || unit == 0)
        return {};
    return site.now().addSecs(qint64(count) * unit);
}

std::optional<QDateTime> absoluteInstant(const QTimeZone &zone, const QString &text)
{
    for (const QString &form :
         {u"yyyy/MM/dd HH:mm"_s, u"yyyy-MM-dd HH:mm"_s, u"yyyy/MM/dd"_s, u"yyyy-MM-dd"_s}) {
        const QDateTime parsed = QDateTime::fromString(text, form);
        if (parsed.isValid())
            return QDateTime(parsed.date(), parsed.time(), zone).toUTC();
    }
    return {};
}

} // namespace

std::optional<QDateTime> jqlInstant(const Site &site, const QString &text)
{
    // Results are cached, because a query compares every issue with the same few texts, and parsing them would dominate
    // the time of a search.
    static QHash<std::pair<QByteArray, QString>, std::optional<QDateTime>> known;
    if (text.isEmpty())
        return {};
    if (const auto relative = relativeInstant(site, text))
        return relative;
    const auto key = std::pair(site.zone.id(), text);
    if (!known.contains(key))
        known.insert(key, absoluteInstant(site.zone, text));
    return known.value(key);
}
