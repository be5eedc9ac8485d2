import QtQuick
import Velmora.Kit
import Velmora.Theme

/// The strip at the upper or lower edge of a menu which says that there are more rows. It scrolls to them from when
/// the pointer comes to it until the pointer leaves it.
Item {
    id: root

    required property MenuRows rows
    required property bool isAbove
    readonly property real rest: isAbove ? rows.offset : rows.furthest - rows.offset

    function begin() {
        glide.to = isAbove ? 0 : rows.furthest
        glide.duration = 1000 * rest / Motion.menuScrollSpeed
        glide.restart()
    }

    x: rows.x
    y: isAbove ? rows.y : rows.y + rows.height - height
    width: rows.width
    height: rows.signHeight
    z: 2
    visible: rest > 0
    onVisibleChanged: if (!visible) glide.stop()

    Rectangle {
        anchors.fill: parent
        color: Theme.elevated
    }

    Symbol {
        anchors.centerIn: parent
        rotation: root.isAbove ? 180 : 0
        name: "chevron.down"
        size: 8
        weight: "bold"
        color: Theme.text2
    }

    MouseArea {
        anchors.fill: parent
        hoverEnabled: true
        // A sign that appears below the resting pointer does not scroll.
        onEntered: if (root.rows.hasPointerMovedTo(mapToItem(null, mouseX, mouseY))) root.begin()
        onPositionChanged: if (!glide.running) root.begin()
        onExited: glide.stop()
    }

    NumberAnimation {
        id: glide

        target: root.rows
        property: "offset"
    }
}
