pragma ComponentBehavior: Bound
import QtQuick
import Velmora.Gallery
import Velmora.Kit
import Velmora.Model

/// A sheet above a page of text: the rest of the window is dimmed and cannot be reached.
Item {
    id: root

    Column {
        spacing: 12

        Repeater {
            model: Samples.projects

            SidebarRow {
                id: row

                required property project modelData

                width: 220
                text: modelData.name
                leading: ProjectBadge { project: row.modelData }
            }
        }

        PushButton {
            text: "Ouvrir la feuille"
            onClicked: sheet.open()
        }
    }

    Sheet {
        id: sheet

        name: "Nouveau ticket"
        visible: true
        width: 420

        Column {
            width: sheet.width
            padding: 20
            spacing: 14

            AppText {
                text: "Nouveau ticket"
                weight: Font.DemiBold
            }

            InputField {
                width: parent.width - 40
                name: "Titre"
                placeholderText: "Titre du ticket"
            }

            InputArea {
                width: parent.width - 40
                name: "Description"
                text: "Le jeton expire après 24 h.\n\n- [ ] Renouveler le jeton"
            }

            CheckBox {
                text: "Créer un autre ticket ensuite"
                checked: true
            }

            Row {
                spacing: 10

                PushButton {
                    text: "Annuler"
                    onClicked: sheet.close()
                }

                PushButton {
                    text: "Créer le ticket"
                    look: PushButton.Prominent
                    onClicked: sheet.close()
                }
            }
        }
    }
}
