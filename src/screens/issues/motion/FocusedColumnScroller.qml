import QtQuick
import Velmora.State
import Velmora.Theme

// Brings the column of the focused card into view each time the focus moves to another issue, with a margin beside it,
// when the board comes into sight, and when it gets less room, as when the inspector opens.
Item {
    id: root

    required property Flickable flickable
    required property BoardModel board
    required property string focusedKey
    // Where the first column begins, which is the margin too.
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

    // Where the board stands once a column with its margins is in view; it moves no further than it must.
    function targetFor(left: real): real {
        const right = left + columnWidth + 2 * firstLeft;
        return Math.max(right - flickable.width, Math.min(left, flickable.contentX));
    }

    function scrollTo(x: real) {
        animation.to = Math.max(0, x);
        animation.restart();
    }

    // A column that is in sight stays so in less room; one that was scrolled away is left there.
    function keepInSight() {
        const column = board.columnOfKey(focusedKey);
        if (column >= 0 && room < roomBefore && wasInSight(firstLeft + column * (columnWidth + columnGap)))
            reveal();
        roomBefore = room;
    }

    function wasInSight(left: real): bool {
        return left < flickable.contentX + roomBefore && left + columnWidth > flickable.contentX;
    }

    // For what must stand there now.
    function revealAtOnce() {
        reveal();
        animation.complete();
    }

    onFocusedKeyChanged: reveal()
    onRoomChanged: keepInSight()

    onVisibleChanged: if (visible) coming.restart()

    // Once what it is for stands in its place.
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
