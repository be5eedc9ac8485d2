pragma ComponentBehavior: Bound

import QtQuick
import Velmora.Options
import Velmora.Kit
import Velmora.Theme

/// One row of a list of options: icon, title, subtitle, a check mark when it is selected, and the digit that picks it.
/// `pointed` reports that the pointer is over the row, and where in the window. `picked` reports a click.
Rectangle {
    id: root

    required property int index
    required property string title
    required property string subtitle
    required property optionIcon icon
    required property bool isSelected
    required property string shortcut
    property bool isHighlighted: false

    // The option that the row showed when the button was pressed. The row may show another option by the time of the
    // release.
    property string pressedTitle
    property string pressedSubtitle

    signal pointed(where: point)
    signal picked()

    function notePress() {
        pressedTitle = title;
        pressedSubtitle = subtitle;
    }

    implicitHeight: Metrics.optionRowHeight
    radius: Metrics.radiusRow
    color: isHighlighted ? Theme.highlightFill : "transparent"

    Accessible.role: Accessible.ListItem
    Accessible.name: root.title
    Accessible.description: root.subtitle
    Accessible.focusable: true
    Accessible.focused: root.isHighlighted && root.visible
    Accessible.selectable: true
    Accessible.selected: root.isSelected
    Accessible.onPressAction: root.picked()

    OptionIconView {
        id: picture
        x: Metrics.gapMedium
        anchors.verticalCenter: parent.verticalCenter
        icon: root.icon
    }

    AppText {
        id: name
        anchors.left: picture.right
        anchors.leftMargin: Metrics.gapMedium
        anchors.verticalCenter: parent.verticalCenter
        width: Math.min(implicitWidth, marks.x - x - Metrics.gapMedium)
        text: root.title
        Accessible.ignored: true
    }

    AppText {
        anchors.left: name.right
        anchors.leftMargin: Metrics.gapMedium
        anchors.verticalCenter: parent.verticalCenter
        width: Math.max(0, Math.min(implicitWidth, marks.x - x - Metrics.gapMedium))
        role: TypeScale.Small
        tabular: true
        color: Theme.text2
        text: root.subtitle
        Accessible.ignored: true
    }

    Row {
        id: marks
        anchors.right: parent.right
        anchors.rightMargin: Metrics.gapMedium
        anchors.verticalCenter: parent.verticalCenter
        spacing: Metrics.gapMedium

        Symbol {
            visible: root.isSelected
            anchors.verticalCenter: parent.verticalCenter
            name: "checkmark"
            size: 11
            weight: "medium"
        }

        KeyCap {
            visible: root.shortcut !== ""
            anchors.verticalCenter: parent.verticalCenter
            text: root.shortcut
        }
    }

    MouseArea {
        anchors.fill: parent
        hoverEnabled: true
        onEntered: root.pointed(mapToItem(null, mouseX, mouseY))
        onPositionChanged: mouse => root.pointed(mapToItem(null, mouse.x, mouse.y))
        onPressed: root.notePress()
        onClicked: if (root.pressedTitle === root.title && root.pressedSubtitle === root.subtitle) root.picked()
    }
}
