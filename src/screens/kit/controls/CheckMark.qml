import QtQuick
import Velmora.Kit
import Velmora.Theme

/// The square of a check box, 14 wide: an outline while it is off, and the accent with a check mark while it is on.
Rectangle {
    id: root

    required property bool checked
    property bool hovered: false
    property bool pressed: false

    implicitWidth: 14
    implicitHeight: 14
    radius: Metrics.radiusCheckBox
    color: checked ? Theme.accent : "transparent"
    border.width: checked ? 0 : 1.2
    border.pixelAligned: false
    border.color: Qt.rgba(Theme.neutral.r, Theme.neutral.g, Theme.neutral.b, 0.7)

    PressShade {
        radius: root.radius
        accented: root.checked
        hovered: root.hovered
        pressed: root.pressed
    }

    Symbol {
        anchors.centerIn: parent
        visible: root.checked
        name: "checkmark"
        size: 8
        weight: "bold"
        color: Theme.textOnAccent
    }
}
