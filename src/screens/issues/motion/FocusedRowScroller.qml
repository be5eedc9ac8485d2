import QtQuick
import Velmora.State
import Velmora.Theme

// Brings the focused row into view each time the focus moves to another issue and when the list comes, clear of the header
// pinned above.
Item {
    id: root

    required property ListView list
    required property IssueListModel rows
    required property string focusedKey
    required property int headerHeight
    // What a bar over the list's lower edge hides.
    property int clearance: 0

    function reveal() {
        const row = root.visible ? rows.rowOfKey(focusedKey) : -1;
        if (row >= 0)
            scrollTo(targetFor(row));
    }

    // Where the list stands once the row is in view. For a row that it holds no item of, the list knows by going there;
    // one that is not laid out yet makes none even then.
    function targetFor(row: int): real {
        const item = list.itemAtIndex(row);
        return item ? targetForItem(item) : targetByGoing(row);
    }

    function targetForItem(item: Item): real {
        if (!item)
            return list.contentY;
        const lowest = Math.max(list.originY, item.y - headerHeight);
        const highest = item.y + item.height + clearance - list.height;
        return Math.max(highest, Math.min(list.contentY, lowest));
    }

    function targetByGoing(row: int): real {
        const from = list.contentY;
        list.positionViewAtIndex(row, ListView.Contain);
        const target = targetForItem(list.itemAtIndex(row));
        list.contentY = from;
        return target;
    }

    function scrollTo(to: real) {
        animation.to = to;
        animation.restart();
    }

    // A row that is in sight stays so when a bar comes over it; one that was scrolled away is left there.
    function keepInSight() {
        const item = list.itemAtIndex(rows.rowOfKey(focusedKey));
        if (item && item.y < list.contentY + list.height && item.y + item.height > list.contentY)
            reveal();
    }

    // For what must stand there now.
    function revealAtOnce() {
        reveal();
        animation.complete();
    }

    onFocusedKeyChanged: reveal()
    onClearanceChanged: keepInSight()

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
        target: root.list
        property: "contentY"
        duration: Motion.scrollDuration
        easing: Springs.even
    }
}
