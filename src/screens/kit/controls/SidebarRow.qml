import QtQuick
import Velmora.Kit
import Velmora.Theme

/// A row of the sidebar: a symbol or a drawn icon (`leading`), a title, a count where there is one. `nested` moves it
/// in.
FocusableItem {
    id: row

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
        text: row.text
        symbol: row.symbol
        leading: row.leading
        count: row.count
        selected: row.selected
    }

    background: Rectangle {
        radius: row.corner
        color: row.selected ? Theme.openFill : "transparent"

        HoverFill {
            radius: row.corner
            shown: row.lit && (row.down || !row.selected)
            fill: row.down ? Theme.openFill : Theme.hoverFill
        }
    }
}
