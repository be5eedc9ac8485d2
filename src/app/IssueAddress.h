#pragma once

#include <QString>
#include <QUrl>

#include <functional>
#include <optional>

/// Addresses that name an issue: "velmora:WEB-12", and the address of its page, "https://example.org/browse/WEB-12".
namespace IssueAddress {

/// Longer addresses name no issue.
inline constexpr qsizetype LongestAddress = 2048;
/// The longest key that a site allows has a project key of 255 characters.
inline constexpr qsizetype LongestKey = 300;

/// The page of an issue on the site of the session; nothing if there is none.
using PageOf = std::function<std::optional<QUrl>(const QString &key)>;

/// The key of the issue that an address names, in capital letters. Nothing for everything else: other programs and web
/// pages can call the program with any text. A page counts only if it is exactly the one that the site of the session has
/// for the issue; a query and a fragment behind it, as links to comments have them, are ignored.
std::optional<QString> keyOf(const QString &address, const PageOf &pageOf);

} // namespace IssueAddress
