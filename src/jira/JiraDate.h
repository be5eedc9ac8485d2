#pragma once

#include <QDate>
#include <QDateTime>
#include <QString>
#include <QTimeZone>

#include <optional>

/// The forms in which Jira writes dates, and wants them.
namespace JiraDate {

/// An instant, in UTC: "2026-10-29T14:32:05.123+0100", or the same by ISO 8601 ("+01:00", "Z", no fraction). Nothing
/// for any other text, a day or an hour that does not exist, or no text at all. Of a fraction, milliseconds are kept.
std::optional<QDateTime> parse(const std::optional<QString> &text);

/// A calendar day, "2026-10-29"; nothing for any other text.
std::optional<QDate> parseDay(const std::optional<QString> &text);
/// The form of `parseDay`.
QString dayText(const QDate &day);

/// An instant as queries name it, to the minute and without its zone: "2026/10/29 14:32".
QString jql(const QDateTime &instant, const QTimeZone &zone);

} // namespace JiraDate
