import QtQuick
import Velmora.State
import Velmora.Theme

// Brings the focused row into view each time the focus moves to another issue, clear of the header pinned above.
Item {
    id: root

    required property ListView list
    required property IssueListModel rows
    required property string focusedKey
    required property int headerHeight

    function reveal() {
        const row = rows.rowOfKey(focusedKey);
        if (row >= 0)
            scrollTo(list.contentY, targetFor(row));
    }

    // Where the list stands once the row is in view. The list itself knows, by going there.
    function targetFor(row: int): real {
        list.positionViewAtIndex(row, ListView.Contain);
        const item = list.itemAtIndex(row);
        const covered = item ? Math.max(0, list.contentY + headerHeight - item.y) : 0;
        return Math.max(list.originY, list.contentY - covered);
    }

    function scrollTo(from: real, to: real) {
        list.contentY = from;
        animation.to = to;
        animation.restart();
    }

    onFocusedKeyChanged: reveal()

    NumberAnimation {
        id: animation
        target: root.list
        property: "contentY"
        duration: Motion.scrollDuration
        easing: Springs.even
    }
}
