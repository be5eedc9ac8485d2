pragma ComponentBehavior: Bound
import QtQuick
import Velmora.Gallery
import Velmora.Kit
import Velmora.Model

/// The controls at rest, chosen, focused and disabled, on the background of the sidebar and of lists.
Item {
    id: root

    GlassPanel {
        id: sidebar

        width: 232
        height: parent.height

        Column {
            x: 8
            y: 14
            width: parent.width - 16

            SidebarRow {
                width: parent.width
                symbol: "tray.full"
                text: "Mes tickets"
                count: "7"
                selected: true
            }

            SidebarRow {
                width: parent.width
                symbol: "clock"
                text: "Récemment consultés"
            }

            Repeater {
                model: Samples.projects

                SidebarRow {
                    id: projectRow

                    required property project modelData

                    width: parent.width
                    text: modelData.name
                    leading: ProjectBadge {
                        project: projectRow.modelData
                    }
                }
            }

            SidebarRow {
                width: parent.width
                symbol: "square.stack"
                text: "Tickets"
                nested: true
            }
        }
    }

    Column {
        anchors.left: sidebar.right
        anchors.leftMargin: 32
        spacing: 24

        Row {
            spacing: 8

            GlassCapsule {
                width: 72

                Row {
                    anchors.centerIn: parent

                    ToolbarCell {
                        name: "Liste"
                        symbol: "list.bullet"
                        on: true
                    }

                    ToolbarCell {
                        name: "Tableau"
                        symbol: "rectangle.split.3x1"
                        symbolSize: 12.5
                    }
                }
            }

            GlassCapsule {
                width: 106

                Row {
                    anchors.centerIn: parent

                    ToolbarCell {
                        name: "Filtres"
                        symbol: "line.3.horizontal.decrease"
                    }

                    ToolbarCell {
                        name: "Affichage"
                        symbol: "slider.horizontal.3"
                    }

                    ToolbarCell {
                        name: "Actualiser"
                        symbol: "arrow.clockwise"
                    }
                }
            }

            IconButton {
                name: "Nouveau ticket"
                symbol: "plus"
                look: IconButton.Prominent
            }

            SearchField {
                name: "Filtrer"
                placeholderText: "Filtrer"
            }

            SearchField {
                name: "Filtrer"
                text: "connexion"
                focus: true
            }
        }

        Row {
            spacing: 12

            PushButton {
                anchors.verticalCenter: parent.verticalCenter
                text: "Connecter Jira"
                look: PushButton.Prominent
            }

            PushButton {
                anchors.verticalCenter: parent.verticalCenter
                text: "Réessayer"
                symbol: "arrow.clockwise"
            }

            PushButton {
                anchors.verticalCenter: parent.verticalCenter
                text: "Annuler"
                look: PushButton.Plain
            }

            PushButton {
                anchors.verticalCenter: parent.verticalCenter
                text: "Créer"
                look: PushButton.Prominent
                enabled: false
            }

            PushButton {
                anchors.verticalCenter: parent.verticalCenter
                text: "Explorer la démo"
                large: true
            }

            PushButton {
                anchors.verticalCenter: parent.verticalCenter
                text: "Focalisé"

                FocusRing {
                    shown: true
                    corner: 15
                }
            }

            IconButton {
                anchors.verticalCenter: parent.verticalCenter
                name: "Rechercher"
                symbol: "magnifyingglass"
                look: IconButton.Glass
                side: 28
                symbolSize: 12
            }

            IconButton {
                anchors.verticalCenter: parent.verticalCenter
                name: "Ajouter"
                symbol: "plus"
                symbolWeight: "semibold"
            }

            InputField {
                anchors.verticalCenter: parent.verticalCenter
                name: "Adresse"
                placeholderText: "mon-equipe.atlassian.net"
                width: 200
            }
        }

        Column {
            spacing: 8

            ToastCard {
                message: "Apparence : Sombre"
                symbol: "moon.fill"
                isError: false
            }

            ToastCard {
                message: "Sélectionne d'abord un ticket"
                symbol: "hand.point.up.left"
                isError: false
            }

            ToastCard {
                message: "Impossible de joindre le serveur. Vérifie ta connexion, puis réessaie dans un instant : "
                         + "la liste affichée peut dater un peu."
                symbol: "exclamationmark.triangle.fill"
                isError: true
            }
        }
    }
}
