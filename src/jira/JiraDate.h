#pragma once

#include <QDate>
#include <QDateTime>
#include <QString>
#include <QTimeZone>

#include <optional>
#include <string_view>

/// Reads and writes dates in the formats of Jira. Dates are read from the text of a response, which is in UTF-8.
namespace JiraDate {

/// Parses an instant and returns it in UTC: "2026-10-29T14:32:05.123+0100", or an ISO 8601 form of it ("+01:00", "Z",
/// no fraction). Fractions are truncated to milliseconds. Nothing for any other text, and for a date or time that does
/// not exist.
std::optional<QDateTime> parse(std::string_view text);

/// Parses a calendar day, "2026-10-29"; nothing for any other text.
std::optional<QDate> parseDay(std::string_view text);
/// Writes a day in the format of `parseDay`.
QString dayText(const QDate &day);

/// Writes an instant in the format of queries, with minutes but without a time zone: "2026/10/29 14:32".
QString jql(const QDateTime &instant, const QTimeZone &zone);

} // namespace JiraDate
