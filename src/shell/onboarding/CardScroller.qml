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

    // Scrolls as little as possible until the item is visible.
    function reveal(item: Item) {
        const top = item.mapToItem(contentItem, 0, 0).y - margin;
        const bottom = top + item.height + 2 * margin;
        contentY = Math.max(0, Math.min(top, Math.max(contentY, bottom - height), contentHeight - height));
    }

    function revealFocus() {
        if (scope.activeFocus && !activeFocus)
            reveal(Window.activeFocusItem);
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
