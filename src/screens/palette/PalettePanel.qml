pragma ComponentBehavior: Bound

import QtQuick
import Velmora.Kit
import Velmora.Palette
import Velmora.Theme

// The panel of the palette.
GlassPanel {
    id: root

    required property CommandPalette commandPalette
    required property bool isDemo
    // The palette is neither opening nor closing.
    required property bool isSettled

    readonly property bool hasHead: commandPalette.capsules.length > 0
    // The height that remains for the rows between the field and the footer in a low window.
    readonly property real room: Window.height - Metrics.paletteTop - field.y - field.height - footer.height - Metrics.gapLarge

    width: Math.min(Metrics.paletteWidth, Math.max(320, Window.width - 2 * Metrics.paneMargin))
    height: footer.y + footer.height
    radius: Metrics.radiusPalette
    shadow: "palette"
    color: Theme.paletteFill

    Accessible.role: Accessible.Dialog
    Accessible.name: commandPalette.isPicker ? commandPalette.title : "Palette de commandes"

    KeyMonitorModifier {
        handler: root.commandPalette
    }

    // Without rounded corners the scene graph knows that this item hides the content below, and does not redraw that
    // content at each key press.
    Rectangle {
        visible: root.isSettled
        y: root.radius
        width: parent.width
        height: parent.height - 2 * root.radius
        color: root.color
    }

    // A click beside a row must not reach the shield of the layer, which closes the palette.
    LayerShield {
        anchors.fill: parent
    }

    PaletteHead {
        id: head
        width: parent.width
        height: root.hasHead ? implicitHeight : 0
        visible: root.hasHead
        commandPalette: root.commandPalette
    }

    Symbol {
        x: 18
        anchors.verticalCenter: field.verticalCenter
        name: root.commandPalette.isPicker ? "arrow.turn.down.right" : "magnifyingglass"
        size: 15
        color: Theme.text2
    }

    PaletteField {
        id: field
        anchors.top: head.bottom
        x: 38
        width: parent.width - x - 18 - (spinner.visible ? spinner.width + Metrics.gap : 0)
        height: Metrics.paletteFieldHeight
        focus: true
        commandPalette: root.commandPalette
    }

    Spinner {
        id: spinner
        anchors.right: parent.right
        anchors.rightMargin: 18
        anchors.verticalCenter: field.verticalCenter
        size: 16
        visible: root.commandPalette.isSearching && root.commandPalette.isOpen
    }

    Hairline {
        anchors.top: rows.top
        width: parent.width
        color: Theme.divider
    }

    PaletteRows {
        id: rows
        anchors.top: field.bottom
        width: parent.width
        height: implicitHeight
        maxHeight: Math.min(Metrics.paletteMaxHeight, root.room)
        enabled: root.commandPalette.isOpen
        commandPalette: root.commandPalette
    }

    Hairline {
        anchors.top: footer.top
        width: parent.width
        visible: !rows.hasMore
        color: Theme.divider
    }

    PaletteFooter {
        id: footer
        anchors.top: rows.bottom
        width: parent.width
        commandPalette: root.commandPalette
        isDemo: root.isDemo
    }
}
