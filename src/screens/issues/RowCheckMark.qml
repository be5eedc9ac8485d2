import QtQuick
import Velmora.Kit
import Velmora.Theme

// The box of a check box, which leaves softly.
Rectangle {
    id: root

    required property bool isChecked
    required property bool isShown

    signal gone()

    width: 14
    height: 14
    radius: Metrics.radiusCheckBox
    color: root.isChecked ? Theme.accent : "transparent"
    border.width: root.isChecked ? 0 : 1.2
    border.pixelAligned: false
    border.color: Qt.rgba(Theme.neutral.r, Theme.neutral.g, Theme.neutral.b, 0.7)
    opacity: root.isShown ? 1 : 0
    onOpacityChanged: if (opacity === 0) gone()

    Behavior on opacity {
        NumberAnimation {
            duration: Motion.fadeDuration
        }
    }

    Symbol {
        anchors.centerIn: parent
        visible: root.isChecked
        name: "checkmark"
        size: 8
        weight: "bold"
        color: Theme.textOnAccent
    }
}
