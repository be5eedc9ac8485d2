#include "richtext/ADFDates.h"

#include "model/dates/DateParts.h"
#include "richtext/ADFQueries.h"

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

/// The largest distance from 1970 of a date in the editors of Jira, which are written in JavaScript, in milliseconds.
constexpr double farthestTime = 8.64e15;

std::optional<double> number(const QString &text)
{
    bool isNumber = false;
    const double value = text.toDouble(&isNumber);
    // QString::toDouble ignores white space around the number.
    if (!isNumber || text != text.trimmed() || !std::isfinite(value))
        return std::nullopt;
    return value;
}

} // namespace

QString ADF::dateText(const ADFNode &node, const UserCalendar &calendar)
{
    const auto time = attribute(node, u"timestamp"_s).and_then(number);
    if (!time || std::abs(*time) > farthestTime)
        return {};
    const QDateTime instant = QDateTime::fromMSecsSinceEpoch(qint64(std::floor(*time)), Qt::UTC);
    return dayShortMonthAndYear(calendar.day(instant), calendar.locale);
}
