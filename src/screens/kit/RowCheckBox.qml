import QtQuick
import Velmora.Theme

/// The check box of a row, 14 square in a target of 22. `shown` fades it in; it can be clicked before it is seen.
FocusableItem {
    id: control

    required property string name
    property bool shown: true

    implicitWidth: 22
    implicitHeight: 22
    checkable: true
    corner: Metrics.radiusSquare
    accessibleName: name
    opacity: enabled ? 1 : 0.45

    contentItem: Item {
        Rectangle {
            anchors.centerIn: parent
            width: 14
            height: 14
            radius: Metrics.radiusCheckBox
            color: control.checked ? Theme.accent : "transparent"
            border.width: control.checked ? 0 : 1.2
            border.pixelAligned: false
            border.color: Qt.rgba(Theme.neutral.r, Theme.neutral.g, Theme.neutral.b, 0.7)
            opacity: control.shown || control.checked || control.visualFocus ? 1 : 0

            Behavior on opacity {
                NumberAnimation {
                    duration: Motion.fadeDuration
                }
            }

            Symbol {
                anchors.centerIn: parent
                visible: control.checked
                name: "checkmark"
                size: 8
                weight: "bold"
                color: Theme.textOnAccent
            }
        }
    }
}
