pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Velmora.Kit
import Velmora.Palette
import Velmora.Theme

// The rows of the palette, or the words that there are none.
Item {
    id: root

    required property CommandPalette commandPalette
    // At most so high; what is more is scrolled to.
    property real maxHeight: Metrics.paletteMaxHeight

    // Told, not measured: a view only guesses at rows that it has not made.
    readonly property int rowsHeight: commandPalette.rowCount * Metrics.optionRowHeight
        + commandPalette.titleCount * Metrics.paletteTitleHeight + list.topMargin + list.bottomMargin

    implicitHeight: commandPalette.rowCount === 0 ? 54 : Math.min(maxHeight, rowsHeight)

    ListView {
        id: list
        anchors.fill: parent
        anchors.leftMargin: Metrics.gap
        anchors.rightMargin: Metrics.gap
        topMargin: Metrics.gapTiny
        bottomMargin: Metrics.gap
        clip: true
        model: root.commandPalette.rows
        boundsBehavior: Flickable.StopAtBounds
        keyNavigationEnabled: false
        currentIndex: root.commandPalette.highlighted
        highlightMoveDuration: 0

        Accessible.role: Accessible.List
        Accessible.name: root.commandPalette.isPicker ? root.commandPalette.title : "Résultats"

        delegate: PaletteSlot {
            width: ListView.view.width
            isHighlighted: index === root.commandPalette.highlighted
            onPointed: root.commandPalette.point(index)
            onPicked: root.commandPalette.activate(index)
        }

        T.ScrollBar.vertical: OverlayScrollBar {
            thickness: 5
        }
    }

    // Says that there is more below.
    Rectangle {
        anchors.bottom: parent.bottom
        width: parent.width
        height: 28
        visible: !list.atYEnd && root.commandPalette.rowCount > 0
        gradient: Gradient {
            GradientStop { position: 0; color: Qt.alpha(Theme.elevatedGlass, 0) }
            GradientStop { position: 1; color: Theme.elevatedGlass }
        }
    }

    AppText {
        visible: root.commandPalette.rowCount === 0
        anchors.centerIn: parent
        role: TypeScale.Small
        color: Theme.text2
        text: root.commandPalette.emptyText
    }
}
