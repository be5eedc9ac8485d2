import QtQuick
import Velmora.Issues

// Scrolls a view while a drag is near its upper or lower edge or, with `isHorizontal`, near its left or right edge.
FrameAnimation {
    id: root

    required property Flickable view
    // The position of the drag along the view.
    required property real position
    property bool isHorizontal: false

    function bounded(to: real, first: real, span: real): real {
        return Math.max(first, Math.min(to, first + Math.max(0, span)));
    }

    function scrollAlong(step: real) {
        view.contentY = bounded(view.contentY + step, view.originY,
            view.contentHeight + view.bottomMargin - view.height);
    }

    function scrollAcross(step: real) {
        view.contentX = bounded(view.contentX + step, view.originX, view.contentWidth - view.width);
    }

    onTriggered: isHorizontal ? scrollAcross(BoardScroll.step(position, view.width) * frameTime * 60)
        : scrollAlong(BoardScroll.step(position, view.height) * frameTime * 60)
}
