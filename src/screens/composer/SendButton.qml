import QtQuick
import Velmora.Composer
import Velmora.Kit
import Velmora.Theme

// The round button that sends a comment, in the colour of its readers.
FocusableItem {
    id: root

    required property Composition composition

    readonly property color fill: composition.isInternal ? Theme.internalNote : Theme.accentFill

    implicitWidth: 30
    implicitHeight: 30
    corner: height / 2
    enabled: composition.canSend
    accessibleName: composition.isSending ? "Envoi en cours" : composition.sendTitle
    hint: composition.sendTitle
    scale: down ? Motion.pressScale : 1
    onClicked: composition.send()

    contentItem: Item {
        Spinner {
            anchors.centerIn: parent
            visible: root.composition.isSending
        }

        Symbol {
            anchors.centerIn: parent
            visible: !root.composition.isSending
            name: root.composition.isInternal ? "lock.fill" : "arrow.up"
            size: 12.5
            weight: root.composition.isInternal ? "regular" : "bold"
            color: root.enabled ? Theme.textOnAccent : Theme.text3
        }
    }

    background: Rectangle {
        radius: root.corner
        color: root.enabled ? root.fill : Theme.ink(0.1)

        HoverFill {
            radius: root.corner
            shown: root.lit
            fill: root.down ? "#1F000000" : "#14FFFFFF"
        }
    }

    Behavior on scale {
        NumberAnimation {
            duration: Motion.pressDuration
        }
    }
}
