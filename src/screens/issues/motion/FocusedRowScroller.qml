import QtQuick
import Velmora.State
import Velmora.Theme

// Scrolls the focused row into view, clear of the header pinned above, each time the focus moves to another issue and
// when the list becomes visible. A change of the issues that moves a visible focused row out of view, or brings it in,
// is followed in the same way.
Item {
    id: root

    required property ListView list
    required property IssueListModel rows
    required property string focusedKey
    required property int headerHeight
    // The height of every row that is no header; 0 if their heights differ.
    property int rowHeight: 0
    // The height that a bar at the list's lower edge covers.
    property int clearance: 0
    // Before the change of the issues that is being made, the focused row was visible, on its way into view, or absent.
    property bool follows: false

    // The model as what Connections needs; the linter does not know the base class of the models.
    function asObject(model) {
        return model;
    }

    function reveal() {
        const row = root.visible ? rows.rowOfKey(focusedKey) : -1;
        if (row >= 0)
            scrollTo(targetFor(row));
    }

    // The scroll position at which the row is in view. If the list has no item for the row, its place is computed from
    // the heights of the rows. Scrolling there and back would also tell the place, but it fills every item twice with
    // another issue, so only lists whose rows differ in height do it.
    function targetFor(row: int): real {
        const item = list.itemAtIndex(row);
        if (item)
            return targetForItem(item);
        return rowHeight > 0 ? targetByCounting(row) : targetByGoing(row);
    }

    function targetForItem(item: Item): real {
        return item ? targetAt(item.y, item.height) : list.contentY;
    }

    function targetAt(top: real, height: real): real {
        const lowest = Math.max(list.originY, top - headerHeight);
        const highest = top + height + clearance - list.height;
        return Math.max(highest, Math.min(list.contentY, lowest));
    }

    // Adds the heights of the rows between the topmost row in view and this row. A list that is not laid out yet has no
    // items.
    function targetByCounting(row: int): real {
        const from = list.indexAt(1, list.contentY + 1);
        const item = list.itemAtIndex(from);
        return item ? targetAt(item.y + heightAbove(row) - heightAbove(from), rowHeight) : list.contentY;
    }

    // A list that is not laid out yet creates no item even then.
    function targetByGoing(row: int): real {
        const from = list.contentY;
        list.positionViewAtIndex(row, ListView.Contain);
        const target = targetForItem(list.itemAtIndex(row));
        list.contentY = from;
        return target;
    }

    function heightAbove(row: int): real {
        const headers = rows.headersAbove(row);
        return headers * headerHeight + (row - headers) * rowHeight;
    }

    function scrollTo(to: real) {
        animation.to = to;
        animation.restart();
    }

    // A visible row stays visible when a bar covers part of the list. A row that was scrolled out of view stays there.
    function keepInSight() {
        if (isInSight())
            reveal();
    }

    function isInSight(): bool {
        const item = list.itemAtIndex(rows.rowOfKey(focusedKey));
        return item && item.y < list.contentY + list.height && item.y + item.height > list.contentY;
    }

    function revealAfterLayout() {
        list.forceLayout();
        reveal();
    }

    // A list that scrolls by more than its height in one step estimates which rows are in view, so the row can be
    // elsewhere in the end. The final position is computed again.
    function arrive() {
        const row = rows.rowOfKey(focusedKey);
        if (row >= 0 && !list.itemAtIndex(row))
            list.positionViewAtIndex(row, ListView.Contain);
        if (row >= 0)
            list.contentY = targetFor(row);
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
    onClearanceChanged: keepInSight()
    onVisibleChanged: if (visible) coming.restart()

    Connections {
        target: root.asObject(root.rows)

        function onAboutToUpdate() {
            root.follows = animation.running || root.rows.rowOfKey(root.focusedKey) < 0 || root.isInSight();
        }

        function onUpdated() {
            if (root.follows && root.visible && root.rows.rowOfKey(root.focusedKey) >= 0)
                moved.restart();
        }
    }

    // Waits until the change is complete.
    Timer {
        id: moved
        interval: 0
        onTriggered: root.revealAfterLayout()
    }

    // Waits until the list has laid out its rows.
    Timer {
        id: coming
        interval: 0
        running: true
        onTriggered: root.reveal()
    }

    NumberAnimation {
        id: animation
        target: root.list
        property: "contentY"
        duration: Motion.scrollDuration
        easing: Springs.even
        onFinished: root.arrive()
    }
}
