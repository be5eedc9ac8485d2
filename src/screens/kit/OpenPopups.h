#pragma once

class QQuickWindow;

/// The popovers and menus that lie over the content of a window.
namespace OpenPopups {

/// Closes them all, the topmost first, so that each gives the focus back to what lies below it. A sheet stays: it must be
/// dealt with first.
void close(const QQuickWindow &window);

} // namespace OpenPopups
