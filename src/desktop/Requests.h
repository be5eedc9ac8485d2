#pragma once

#include <QByteArray>
#include <QString>

/// What a start of the program can ask for, instead of an address of an issue. The same texts pass from a second process to
/// the first one and from the desktop to the program; without a text, the program shows its main window.
namespace Requests {

inline constexpr char NewIssue[] = "--new-issue";
inline constexpr char Palette[] = "--palette";
inline constexpr char Refresh[] = "--refresh";

/// The request with the id of an action in the desktop file ("new-issue"); empty for an unknown id.
QByteArray ofAction(const QString &id);
/// The request to open the window of an issue.
QByteArray toOpen(const QString &key);

} // namespace Requests
