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
    // There are rows below those in sight.
    readonly property bool hasMore: !list.atYEnd && commandPalette.rowCount > 0
    // At most so high; what is more is scrolled to.
    property real maxHeight: Metrics.paletteMaxHeight

    implicitHeight: commandPalette.rowCount === 0 ? 54 : places.viewHeight

    RowPlaces {
        id: places
        palette: root.commandPalette
        rowHeight: Metrics.optionRowHeight
        titleHeight: Metrics.paletteTitleHeight
        above: Metrics.gapTiny
        below: Metrics.gap
        highest: root.maxHeight
        fade: more.height
        // Writing ends a flick under way, even when nothing changes.
        onTopChanged: if (list.contentY !== top) list.contentY = top
    }

    Flickable {
        id: list
        anchors.fill: parent
        anchors.leftMargin: Metrics.gap
        anchors.rightMargin: Metrics.gap
        clip: true
        contentHeight: places.contentHeight
        boundsBehavior: Flickable.StopAtBounds
        visible: root.commandPalette.rowCount > 0
        onContentYChanged: places.top = contentY

        Accessible.role: Accessible.List
        Accessible.name: root.commandPalette.isPicker ? root.commandPalette.title : "Résultats"

        T.ScrollBar.vertical: OverlayScrollBar {
            thickness: 5
        }

        Repeater {
            model: places

            PaletteSlot {
                width: list.width
                isHighlighted: row === root.commandPalette.highlighted
                onPointed: root.commandPalette.point(row)
                onPicked: root.commandPalette.activate(row)
            }
        }
    }

    // Says that there is more below.
    Rectangle {
        id: more
        anchors.bottom: parent.bottom
        width: parent.width
        height: 28
        visible: root.hasMore
        gradient: Gradient {
            GradientStop { position: 0; color: Qt.alpha(Theme.paletteFill, 0) }
            GradientStop { position: 1; color: Theme.paletteFill }
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
