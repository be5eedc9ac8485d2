pragma ComponentBehavior: Bound

import QtQuick
import Velmora.Issues
import Velmora.Kit
import Velmora.Model
import Velmora.Theme

// One issue of the board.
Rectangle {
    id: root

    required property issue issue
    required property bool isFocused
    required property bool isChecked
    required property bool isOpen
    required property string dueText
    required property bool isOverdue
    required property string dueTooltip
    required property string accessibleName
    // Its menu is open: it looks as under the pointer, which is on the menu.
    property bool hasMenu: false

    signal clicked(modifiers: int)
    signal menuRequested(x: real, y: real)
    // The picker of a kind (`PropertyOptions.Kind`) is wanted at a cell.
    signal pickRequested(kind: int, cell: Item)
    signal dragBegun(handler: DragHandler)

    readonly property bool isStrong: isChecked || isOpen
    // 0 at rest, 1 under the pointer.
    property real lift: hover.hovered || hasMenu ? 1 : 0

    Behavior on lift {
        NumberAnimation {
            duration: Motion.cardDuration
            easing: Springs.even
        }
    }

    implicitHeight: content.height + 2 * 12
    radius: Metrics.radiusCard
    color: Theme.card

    Accessible.role: Accessible.ListItem
    Accessible.name: root.accessibleName
    Accessible.focusable: true
    Accessible.focused: root.isFocused && root.visible
    Accessible.selectable: true
    Accessible.selected: root.isChecked
    Accessible.onPressAction: root.clicked(0)

    GlassFrame {
        anchors.fill: parent
        radius: root.radius
        dark: Theme.dark
        shadow: "card"
        opacity: 1 - root.lift
    }

    GlassFrame {
        anchors.fill: parent
        radius: root.radius
        dark: Theme.dark
        shadow: "cardHover"
        opacity: root.lift
    }

    Rectangle {
        anchors.fill: parent
        radius: root.radius
        color: "transparent"
        border.width: root.isStrong ? 1.5 : 1
        border.pixelAligned: false
        border.color: root.isStrong ? Theme.accentAt(0.8) : root.isFocused ? Theme.accentAt(0.4) : Theme.ink(0.07)
    }

    HoverHandler {
        id: hover
    }

    TapHandler {
        id: tap
        acceptedButtons: Qt.LeftButton | Qt.RightButton
        gesturePolicy: TapHandler.ReleaseWithinBounds
        onTapped: (point, button) => button === Qt.RightButton
            ? root.menuRequested(point.position.x, point.position.y)
            : root.clicked(tap.point.modifiers)
    }

    DragHandler {
        id: drag
        target: null
        acceptedDevices: PointerDevice.Mouse | PointerDevice.TouchPad
        onActiveChanged: if (active) root.dragBegun(drag)
    }

    Column {
        id: content
        x: 12
        y: 12
        width: parent.width - 2 * 12
        spacing: Metrics.gap

        CardHead {
            width: parent.width
            issue: root.issue
            onPickRequested: (kind, cell) => root.pickRequested(kind, cell)
        }

        AppText {
            width: parent.width
            weight: Font.Medium
            wrapMode: Text.Wrap
            maximumLineCount: 3
            text: root.issue.summary
        }

        CardFoot {
            width: parent.width
            issue: root.issue
            dueText: root.dueText
            isOverdue: root.isOverdue
            dueTooltip: root.dueTooltip
            onPickRequested: (kind, cell) => root.pickRequested(kind, cell)
        }
    }
}
