pragma ComponentBehavior: Bound

import QtQuick
import Velmora.Create
import Velmora.Kit
import Velmora.Options
import Velmora.Theme

// The head of the sheet: the project of the new issue, the way back to an abandoned text, and the close button.
Item {
    id: root

    required property NewIssueForm form

    signal resumed()
    signal dismissed()

    implicitHeight: 18 + Metrics.propertyChipHeight

    OptionChip {
        id: chip

        x: Metrics.pageMargin
        anchors.bottom: parent.bottom
        // A long name is elided before the heading is.
        width: Math.min(implicitWidth, tail.x - x - chevron.width - heading.implicitWidth - 3 * Metrics.gap)
        title: root.form.projectTitle
        accessibleName: "Projet : " + title
        placeholder: "Projet…"
        enabled: !root.form.isSubmitting
        source: NewIssueOptions {
            form: root.form
            kind: NewIssueOptions.Project
        }
        leading: Item {
            implicitWidth: root.form.hasProject ? badge.width : folder.width
            implicitHeight: 16

            ProjectBadge {
                id: badge

                visible: root.form.hasProject
                project: root.form.project
                size: 16
                Accessible.ignored: true
            }

            Symbol {
                id: folder

                visible: !root.form.hasProject
                name: "folder"
                size: 12
            }
        }
    }

    Symbol {
        id: chevron

        anchors.left: chip.right
        anchors.leftMargin: Metrics.gap
        anchors.verticalCenter: chip.verticalCenter
        name: "chevron.right"
        size: 9
        weight: "bold"
        color: Theme.text3
    }

    AppText {
        id: heading

        anchors.left: chevron.right
        anchors.leftMargin: Metrics.gap
        anchors.right: tail.left
        anchors.rightMargin: Metrics.gap
        anchors.verticalCenter: chip.verticalCenter
        text: "Nouveau ticket"
        weight: Font.Medium
        Accessible.role: Accessible.Heading
    }

    Row {
        id: tail

        anchors.right: parent.right
        anchors.rightMargin: 20
        anchors.verticalCenter: chip.verticalCenter
        spacing: Metrics.gap

        PushButton {
            anchors.verticalCenter: parent.verticalCenter
            visible: root.form.canResume
            look: PushButton.Plain
            text: "Reprendre le brouillon"
            onClicked: {
                root.form.resume();
                root.resumed();
            }
        }

        IconButton {
            look: IconButton.Glass
            side: 28
            symbolSize: 9.5
            symbolWeight: "semibold"
            name: "Fermer"
            symbol: "xmark"
            onClicked: root.dismissed()
        }
    }
}
