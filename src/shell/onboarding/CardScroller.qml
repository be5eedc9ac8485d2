import QtQuick
import Velmora.Theme

// Shows one card, or a column of them. What does not fit is scrolled by the wheel, and so that the item with the
// keyboard focus is visible.
Flickable {
    id: root

    required property Item card
    // Has the keyboard focus while something on the card has it.
    required property Item scope
    // The distance of the card from the window's edges, and of a revealed item from them.
    property real margin: Metrics.pageMargin

    // Scrolls as little as possible until a part of the content is visible.
    function reveal(box: rect) {
        const top = box.y - margin;
        const bottom = box.y + box.height + margin;
        contentY = Math.max(0, Math.min(top, Math.max(contentY, bottom - height), contentHeight - height));
    }

    // An item that is higher than the view, such as a document, reveals its focused part itself.
    function revealFocus() {
        const item = Window.activeFocusItem;
        if (scope.activeFocus && item.height < height)
            reveal(item.mapToItem(contentItem, 0, 0, item.width, item.height));
    }

    contentHeight: Math.max(height, card.height + 2 * margin)
    boundsBehavior: Flickable.StopAtBounds
    onContentHeightChanged: resized.restart()
    onHeightChanged: resized.restart()
    Window.onActiveFocusItemChanged: revealFocus()

    // Waits until the card is laid out.
    Timer {
        id: resized
        interval: 0
        onTriggered: root.revealFocus()
    }
}
