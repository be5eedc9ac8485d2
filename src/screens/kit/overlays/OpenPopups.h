#pragma once

class QQuickWindow;

/// The popovers and menus that lie over the content of a window.
namespace OpenPopups {

/// Closes them all, the topmost first, so that each gives the focus back to what lies below it. What dims the rest
/// stays, as sheets do: it must be dealt with first.
void close(const QQuickWindow &window);

} // namespace OpenPopups
