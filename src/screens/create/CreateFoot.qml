pragma ComponentBehavior: Bound

import QtQuick
import Velmora.Create
import Velmora.Kit
import Velmora.Theme

// The foot of the sheet: whether it stays open for the next issue, and the button that creates the issue.
Item {
    id: root

    required property NewIssueForm form

    implicitHeight: 2 * Metrics.gapLarge + button.implicitHeight

    ToggleSwitch {
        id: series

        x: Metrics.pageMargin
        anchors.verticalCenter: parent.verticalCenter
        name: "Créer d'autres tickets"
        checked: root.form.createsMore
        onToggled: root.form.createsMore = checked
    }

    AppText {
        anchors.left: series.right
        anchors.leftMargin: Metrics.gapMedium
        anchors.right: button.left
        anchors.rightMargin: Metrics.gap
        anchors.verticalCenter: parent.verticalCenter
        text: series.name
        Accessible.ignored: true
    }

    PushButton {
        id: button

        anchors.right: parent.right
        anchors.rightMargin: Metrics.pageMargin
        anchors.verticalCenter: parent.verticalCenter
        look: PushButton.Prominent
        text: "Créer le ticket"
        enabled: root.form.canSubmit
        opacity: root.form.isSubmitting ? 0 : 1
        onClicked: root.form.submit()
    }

    Spinner {
        anchors.centerIn: button
        visible: root.form.isSubmitting
        Accessible.name: "Création en cours"
    }
}
