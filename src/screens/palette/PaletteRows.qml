pragma ComponentBehavior: Bound

import QtQuick
import Velmora.Kit
import Velmora.Palette
import Velmora.Theme

// The rows of the palette, or the message that there are none.
Item {
    id: root

    required property CommandPalette commandPalette
    // There are more rows below the visible ones.
    readonly property bool hasMore: !list.atYEnd && commandPalette.rowCount > 0
    // The maximum height. Further rows are reached by scrolling.
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
        // An assignment stops a running flick, even when the value stays the same.
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

    Scrolling {
        view: list
        ground: Theme.paletteFill
        thickness: 5
        fadesAtBottom: false
    }

    // Indicates that there are more rows below.
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
