import QtQuick
import Velmora.Kit
import Velmora.Theme

// A calendar with buttons that set and clear a due date. Days are texts such as "2026-10-31".
FocusScope {
    id: root

    required property string day
    required property string today

    // A day was chosen; empty to clear the date.
    signal chosen(day: string)

    height: buttons.y + buttons.height + Metrics.panelPadding
    focus: true

    KeyMonitorModifier {
        handler: DefaultAction {
            onTriggered: root.chosen(calendar.day)
        }
    }

    DatePicker {
        id: calendar
        width: root.width
        focus: true
        today: root.today
        onAccepted: root.chosen(day)
        // The day of the issue when the calendar opens. Changes that arrive later do not move the choice.
        Component.onCompleted: day = root.day
    }

    Item {
        id: buttons
        x: Metrics.panelPadding
        y: calendar.height
        width: parent.width - 2 * x
        height: Metrics.buttonHeight

        PushButton {
            anchors.verticalCenter: parent.verticalCenter
            look: PushButton.Plain
            destructive: true
            text: "Retirer"
            onClicked: root.chosen("")
        }

        PushButton {
            anchors.right: parent.right
            look: PushButton.Prominent
            text: "Valider"
            onClicked: root.chosen(calendar.day)
        }
    }
}
