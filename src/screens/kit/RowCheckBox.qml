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
        CheckMark {
            anchors.centerIn: parent
            checked: control.checked
            hovered: control.lit
            pressed: control.down
            opacity: control.shown || control.checked || control.visualFocus ? 1 : 0

            Behavior on opacity {
                NumberAnimation {
                    duration: Motion.fadeDuration
                }
            }
        }
    }
}
