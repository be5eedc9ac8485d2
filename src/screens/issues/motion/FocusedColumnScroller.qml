import QtQuick
import Velmora.State
import Velmora.Theme

// Scrolls the column of the focused card into view, with a margin beside it. This happens each time the focus moves to
// another issue, when the board becomes visible, when the board becomes narrower, for example because the inspector
// opens, and when a change of the issues moves a visible focused card to another column.
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
    // Before the change of the issues that is being made, the column was visible or on its way into view.
    property bool follows: false

    // The model as what Connections needs; the linter does not know the base class of the models.
    function asObject(model) {
        return model;
    }

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

    Connections {
        target: root.asObject(root.board)

        function onAboutToUpdate() {
            const column = root.board.columnOfKey(root.focusedKey);
            root.follows = animation.running || column < 0
                || root.wasInSight(root.firstLeft + column * (root.columnWidth + root.columnGap));
        }

        function onUpdated() {
            if (root.follows && root.visible)
                coming.restart();
        }
    }

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
