pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Velmora.Kit
import Velmora.Shell
import Velmora.State
import Velmora.Theme

// The program's menus, shown above the window's content while the user operates them by keyboard.
T.MenuBar {
    id: root

    required property AppStore store
    required property MenuBarKeys keys
    required property AppCommands commands

    implicitHeight: 34
    padding: Metrics.gapTiny
    Accessible.role: Accessible.MenuBar
    Accessible.name: "Menus"

    Component.onCompleted: (root.itemAt(0) as T.MenuBarItem).triggered()

    delegate: MenuBarTitle {}

    contentItem: Row {
        spacing: 2

        Repeater {
            model: root.contentModel
        }
    }

    background: Rectangle {
        color: Theme.elevatedGlass

        Rectangle {
            anchors.bottom: parent.bottom
            width: parent.width
            height: 1
            color: Theme.divider
        }
    }

    Binding {
        target: root.keys
        property: "hasOpenMenu"
        value: file.opened || issues.opened || view.opened
    }

    PopupMenu {
        id: file
        title: "Fichier"

        CommandMenuItem {
            modelData: root.commands.newIssue
            keys: root.keys
        }

        PopupMenuItem {
            text: "Réglages…"
            shortcut: "Ctrl+,"
            onTriggered: root.store.run(Commands.Command.OpenSettings)
        }

        PopupMenuItem {
            text: "Rechercher les mises à jour…"
            onTriggered: root.store.run(Commands.Command.CheckForUpdates)
        }

        PopupMenuItem {
            text: "À propos de Velmora"
            onTriggered: About.show()
        }

        PopupMenuSeparator {}

        PopupMenuItem {
            text: "Quitter"
            shortcut: "Ctrl+Q"
            onTriggered: Qt.quit()
        }
    }

    PopupMenu {
        id: issues
        title: "Tickets"

        Repeater {
            model: root.commands.general

            CommandMenuItem {
                keys: root.keys
            }
        }

        PopupMenuSeparator {
            visible: root.commands.editing.length > 0
            height: visible ? implicitHeight : 0
        }

        Repeater {
            model: root.commands.editing

            CommandMenuItem {
                keys: root.keys
            }
        }

        PopupMenuSeparator {}

        Repeater {
            model: root.commands.sharing

            CommandMenuItem {
                keys: root.keys
            }
        }

        PopupMenuSeparator {
            visible: root.commands.display.length > 0
            height: visible ? implicitHeight : 0
        }

        Repeater {
            model: root.commands.display

            CommandMenuItem {
                keys: root.keys
            }
        }
    }

    PopupMenu {
        id: view
        title: "Affichage"

        AppearanceMenu {
            store: root.store
        }
    }
}
