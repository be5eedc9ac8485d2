pragma ComponentBehavior: Bound

import QtQuick
import Velmora.Kit
import Velmora.Options
import Velmora.Theme

/// The rows of a list of options, or the text that there are none, without a search field: the focus stays wherever the
/// query is typed. `list` contains the logic, and needs a key monitor in the same layer to receive keys. `name` is the
/// name of the rows for screen readers.
Item {
    id: root

    required property OptionList list
    required property string name
    readonly property int highest: 340

    /// Scrolls to the highlighted row. The first and the last row scroll to the very end of the list.
    function follow() {
        rows.positionViewAtIndex(list.highlighted, ListView.Contain)
        if (list.highlighted === 0)
            rows.positionViewAtBeginning()
    }

    implicitHeight: list.isEmpty ? nothing.height : rows.height
    Component.onCompleted: list.findPointer(root)

    Connections {
        target: root.list

        function onHighlightedChanged() {
            root.follow();
        }
    }

    ListView {
        id: rows

        x: 6
        width: parent.width - 12
        height: Math.min(root.highest, contentHeight + topMargin + bottomMargin)
        topMargin: 6
        bottomMargin: 6
        visible: !root.list.isEmpty
        clip: contentHeight + topMargin + bottomMargin > height
        model: root.list.rows
        boundsBehavior: Flickable.StopAtBounds
        keyNavigationEnabled: false
        // Rows that the view creates in advance would survive the filter that removes them.
        cacheBuffer: 0
        currentIndex: -1
        Accessible.role: Accessible.List
        Accessible.name: root.name

        delegate: OptionRow {
            width: rows.width
            isHighlighted: index === root.list.highlighted
            onIndexChanged: order.restore()
            onPointed: where => root.list.point(index, where)
            onPicked: root.list.activate(index)
        }
    }

    RowOrder {
        id: order
        content: rows.contentItem
    }

    Scrolling {
        view: rows
        ground: Theme.elevatedGlass
        thickness: 5
    }

    AppText {
        id: nothing

        width: parent.width
        horizontalAlignment: Text.AlignHCenter
        visible: root.list.isEmpty
        topPadding: 18 + leading
        bottomPadding: 18 + leading
        role: TypeScale.Small
        color: Theme.text2
        text: "Aucun résultat"
    }
}
