import QtQuick
import Velmora.Kit
import Velmora.Theme

/// A row of the sidebar: a symbol or a drawn icon (`leading`), a title, and an optional count. `nested` indents it.
FocusableItem {
    id: root

    property string symbol
    property Item leading: null
    property string count
    property bool selected: false
    property bool nested: false

    implicitHeight: Metrics.sidebarRowHeight
    leftPadding: nested ? 22 : 8
    rightPadding: 10
    corner: Metrics.radiusRow
    accessibleName: count.length > 0 ? text + ", " + count : text
    opacity: enabled ? 1 : 0.45
    Accessible.selectable: true
    Accessible.selected: selected

    contentItem: SidebarRowLabel {
        text: root.text
        symbol: root.symbol
        leading: root.leading
        count: root.count
        selected: root.selected
    }

    background: Rectangle {
        radius: root.corner
        color: root.selected ? Theme.openFill : "transparent"

        HoverFill {
            radius: root.corner
            shown: root.lit && (root.down || !root.selected)
            fill: root.down ? Theme.openFill : Theme.hoverFill
        }
    }
}
