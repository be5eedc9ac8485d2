pragma ComponentBehavior: Bound

import QtQuick
import Velmora.Kit
import Velmora.State
import Velmora.Theme

// The current toasts, oldest first. They appear and disappear at the bottom edge.
ListView {
    id: root

    required property ToastModel toasts
    required property int bottomGap

    signal dismissed(id: string)

    width: Metrics.toastMaxWidth
    height: contentHeight
    anchors.bottomMargin: bottomGap
    interactive: false
    spacing: Metrics.gap
    model: toasts

    delegate: Item {
        id: slot

        required property string toastId
        required property string message
        required property string symbol
        required property bool isError

        width: root.width
        height: card.implicitHeight

        ToastCard {
            id: card
            anchors.horizontalCenter: parent.horizontalCenter
            message: slot.message
            symbol: slot.symbol
            isError: slot.isError
            onClicked: root.dismissed(slot.toastId)
        }
    }

    add: Transition {
        NumberAnimation {
            property: "opacity"
            from: 0
            to: 1
            duration: Motion.fadeDuration
        }
        NumberAnimation {
            property: "y"
            from: root.height + root.bottomGap
            duration: Motion.toastInDuration
            easing: Springs.soft
        }
    }

    remove: Transition {
        NumberAnimation {
            property: "opacity"
            to: 0
            duration: Motion.fadeDuration
        }
        NumberAnimation {
            property: "y"
            to: root.height + root.bottomGap
            duration: Motion.toastOutDuration
            easing: Springs.firm
        }
    }

    displaced: Transition {
        NumberAnimation {
            property: "y"
            duration: Motion.stateDuration
            easing: Springs.even
        }
    }
}
