#pragma once

#include <QDate>
#include <QDateTime>
#include <QString>
#include <QTimeZone>

#include <optional>

/// Reads and writes dates in the formats of Jira.
namespace JiraDate {

/// Parses an instant and returns it in UTC: "2026-10-29T14:32:05.123+0100", or an ISO 8601 form of it ("+01:00", "Z",
/// no fraction). Fractions are truncated to milliseconds. Nothing for any other text, for a date or time that does not
/// exist, and for an absent text.
std::optional<QDateTime> parse(const std::optional<QString> &text);

/// Parses a calendar day, "2026-10-29"; nothing for any other text.
std::optional<QDate> parseDay(const std::optional<QString> &text);
/// Writes a day in the format of `parseDay`.
QString dayText(const QDate &day);

/// Writes an instant in the format of queries, with minutes but without a time zone: "2026/10/29 14:32".
QString jql(const QDateTime &instant, const QTimeZone &zone);

} // namespace JiraDate
