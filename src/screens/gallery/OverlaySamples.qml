import QtQuick
import Velmora.Gallery
import Velmora.Kit
import Velmora.Theme

/// Overlays in their open state: menus, a popover, a hint. Also the loading indicators.
Item {
    id: root

    readonly property bool isShown: Window.window !== null

    // A popover can open only inside a window.
    function open() {
        if (isShown && !chip.isPresented)
            chip.activate()
    }

    onIsShownChanged: open()
    Component.onCompleted: open()

    Item {
        PopupMenu {
            visible: true
            closePolicy: PopupMenu.NoAutoClose

            PopupMenu {
                title: "Statut"

                PopupMenuItem { text: "À faire" }
            }

            PopupMenu {
                title: "Priorité"
                enabled: false

                PopupMenuItem { text: "Haute" }
            }

            PopupMenuSeparator {}

            PopupMenuItem { text: "Ouvrir dans Jira"; symbol: "safari"; highlighted: true }

            PopupMenuItem { text: "Copier la clé"; symbol: "number"; shortcut: "Ctrl+C" }

            PopupMenuItem { text: "Supprimer"; symbol: "trash"; enabled: false }

            PopupMenuItem { text: "Supprimer…"; symbol: "trash"; destructive: true }
        }
    }

    Item {
        x: 230

        PopupMenu {
            visible: true
            closePolicy: PopupMenu.NoAutoClose

            PopupMenuItem { text: "Backlog"; leading: StatusIcon { status: Samples.statuses[0] } }

            PopupMenuItem { text: "À faire"; checked: true; leading: StatusIcon { status: Samples.statuses[1] } }

            PopupMenuItem {
                text: "En cours"
                checked: true
                highlighted: true
                leading: StatusIcon { status: Samples.statuses[2] }
            }

            PopupMenuItem { text: "En revue"; leading: StatusIcon { status: Samples.statuses[3] } }

            PopupMenuSeparator {}

            PopupMenuItem { text: "Effacer les filtres"; symbol: "xmark.circle" }
        }
    }

    GlassChip {
        id: chip

        x: 470
        title: "31 oct."
        leading: Symbol { name: "calendar"; size: 12 }

        DatePicker {
            width: 290
            day: "2026-10-31"
            today: "2026-10-29"
        }
    }

    IconButton {
        y: 240
        name: "Actualiser"
        symbol: "arrow.clockwise"
        look: IconButton.Glass

        HintTip {
            shown: root.isShown
            delay: 0
            text: "Actualiser (Ctrl+R)"
        }
    }

    Row {
        y: 340
        spacing: 20

        Repeater {
            model: [0, 90, 225]

            Spinner {
                required property int modelData

                running: false
                rotation: modelData
                size: 28
            }
        }

        Repeater {
            model: [0, 0.01, 0.4, 1]

            ProgressBar {
                required property real modelData

                anchors.verticalCenter: parent.verticalCenter
                width: 110
                name: "Téléchargement"
                value: modelData
            }
        }
    }

    SkeletonPulse {
        y: 390
        width: 300
        height: 40

        SkeletonBar { width: 220 }

        SkeletonBar { y: 18; width: 280 }
    }

    Item {
        x: 340
        y: 390
        width: 200
        height: 60

        Rectangle {
            anchors.fill: parent
            color: Theme.boardColumn
        }

        OverlayScrollBar {
            anchors.right: parent.right
            height: 45
            orientation: Qt.Vertical
            size: 0.5
            position: 0.3
            active: true
        }

        OverlayScrollBar {
            anchors.bottom: parent.bottom
            width: parent.width - 15
            orientation: Qt.Horizontal
            size: 0.4
            position: 0.5
            active: true
        }
    }
}
