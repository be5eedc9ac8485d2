#pragma once

class QQuickWindow;

/// The popovers and menus above the content of a window.
namespace OpenPopups {

/// Closes all popovers and menus, topmost first, so that each returns the focus to the one below it. Popups that dim
/// the window, such as sheets, stay open, because the user must complete them first.
void close(const QQuickWindow &window);

} // namespace OpenPopups
