pragma ComponentBehavior: Bound
import QtQuick
import Velmora.Gallery
import Velmora.Kit
import Velmora.Model

/// Menus in their open state: more rows than fit, scrolled to the middle and at the start, long and right-to-left
/// titles, and a submenu with icons.
Item {
    id: root

    Item {
        LongMenu {
            current: 20
        }
    }

    Item {
        x: 170

        LongMenu {
            current: 0
        }
    }

    Item {
        x: 340

        PopupMenu {
            visible: true
            closePolicy: PopupMenu.NoAutoClose

            PopupMenuItem { text: "Étiquettes"; symbol: "tag" }

            PopupMenuItem {
                text: "facturation-des-abonnements-annuels-avec-remise-exceptionnelle-de-fin-de-contrat"
                leading: LabelDot { name: "auth"; size: 8 }
            }

            PopupMenuItem { text: "תווית מימין לשמאל"; leading: LabelDot { name: "ios"; size: 8 } }

            PopupMenuItem { text: "sur\ndeux lignes"; leading: LabelDot { name: "api"; size: 8 } }
        }
    }

    Item {
        x: 340
        y: 150

        PopupMenu {
            visible: true
            closePolicy: PopupMenu.NoAutoClose
            onOpened: currentIndex = 3

            PopupMenuItem { text: "Ouvrir dans une nouvelle fenêtre"; symbol: "macwindow.on.rectangle" }

            PopupMenuSeparator {}

            PopupMenu {
                title: "Statut"
            }

            PopupMenu {
                title: "Assigner"
            }
        }
    }

    Item {
        x: 608
        y: 213

        PopupMenu {
            visible: true
            closePolicy: PopupMenu.NoAutoClose

            PopupMenuItem { text: "M'assigner"; symbol: "person.fill.checkmark" }

            PopupMenuSeparator {}

            Repeater {
                model: Samples.people

                PopupMenuItem {
                    id: row

                    required property jiraUser modelData

                    text: modelData.name
                    leading: Image {
                        sourceSize.width: 16
                        sourceSize.height: 16
                        source: IconAddresses.avatar(row.modelData, 16)
                    }
                }
            }
        }
    }

    component LongMenu: PopupMenu {
        id: menu

        required property int current

        visible: true
        closePolicy: PopupMenu.NoAutoClose
        onOpened: currentIndex = current

        Repeater {
            model: 40

            PopupMenuItem {
                required property int index

                text: "Étiquette " + (index + 1)
                checked: index === 18
            }
        }
    }
}
