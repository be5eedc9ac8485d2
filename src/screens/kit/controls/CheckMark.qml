import QtQuick
import Velmora.Kit
import Velmora.Theme

/// The square of a check box, 14 wide: a line while it is off, the accent with a tick while it is on.
Rectangle {
    id: mark

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
        radius: mark.radius
        accented: mark.checked
        hovered: mark.hovered
        pressed: mark.pressed
    }

    Symbol {
        anchors.centerIn: parent
        visible: mark.checked
        name: "checkmark"
        size: 8
        weight: "bold"
        color: Theme.textOnAccent
    }
}
