import QtQuick
import Velmora.State
import Velmora.Theme

// Scrolls the column of the focused card into view, with a margin beside it. This happens each time the focus moves to
// another issue, when the board becomes visible, and when the board becomes narrower, for example because the inspector
// opens.
Item {
    id: root

    required property Flickable flickable
    required property BoardModel board
    required property string focusedKey
    // The left edge of the first column, which is also the margin.
    required property int firstLeft
    required property int columnWidth
    required property int columnGap

    readonly property real room: flickable.width
    property real roomBefore: 0

    function reveal() {
        const column = root.visible ? board.columnOfKey(focusedKey) : -1;
        if (column >= 0)
            scrollTo(targetFor(column * (columnWidth + columnGap)));
    }

    // The scroll position at which a column and its margins are in view, as near as possible to the present position.
    function targetFor(left: real): real {
        const right = left + columnWidth + 2 * firstLeft;
        return Math.max(right - flickable.width, Math.min(left, flickable.contentX));
    }

    function scrollTo(x: real) {
        animation.to = Math.max(0, x);
        animation.restart();
    }

    // A visible column stays visible when the board becomes narrower. A column that was scrolled out of view stays
    // there.
    function keepInSight() {
        const column = board.columnOfKey(focusedKey);
        if (column >= 0 && room < roomBefore && wasInSight(firstLeft + column * (columnWidth + columnGap)))
            reveal();
        roomBefore = room;
    }

    function wasInSight(left: real): bool {
        return left < flickable.contentX + roomBefore && left + columnWidth > flickable.contentX;
    }

    // The user scrolls elsewhere.
    function stop() {
        animation.stop();
    }

    // Scrolls without animation, for callers that need the final position now.
    function revealAtOnce() {
        reveal();
        animation.complete();
    }

    onFocusedKeyChanged: reveal()
    onRoomChanged: keepInSight()

    onVisibleChanged: if (visible) coming.restart()

    // Waits until the board has laid out its columns.
    Timer {
        id: coming
        interval: 0
        running: true
        onTriggered: root.reveal()
    }

    NumberAnimation {
        id: animation
        target: root.flickable
        property: "contentX"
        duration: Motion.scrollDuration
        easing: Springs.even
    }
}
