pragma ComponentBehavior: Bound

import QtQuick
import Velmora.Kit
import Velmora.Shell
import Velmora.State
import Velmora.Theme

// The site, and the menu of the session, which exists only while it is open.
Item {
    id: root

    required property AppStore store
    required property Workspace workspace

    property bool isMenuOpen: false

    implicitHeight: 40

    FocusableItem {
        id: button
        x: Metrics.gapMedium
        anchors.verticalCenter: parent.verticalCenter
        width: Math.min(implicitWidth, tools.x - x - Metrics.gapSmall)
        height: 28
        padding: 4
        accessibleName: "Espace " + root.store.siteShortName
        onClicked: root.isMenuOpen = true

        background: HoverFill {
            radius: Metrics.radiusRow
            shown: button.lit || root.isMenuOpen
        }

        contentItem: WorkspaceLabel {
            initial: root.workspace.initial
            name: root.store.siteShortName
        }
    }

    Row {
        id: tools
        anchors.right: parent.right
        anchors.rightMargin: Metrics.gap
        anchors.verticalCenter: parent.verticalCenter
        spacing: Metrics.gapSmall

        IconButton {
            look: IconButton.Glass
            side: 28
            name: "Rechercher"
            hint: Hints.search
            symbol: "magnifyingglass"
            onClicked: root.store.run(Commands.Command.TogglePalette)
        }

        IconButton {
            look: IconButton.Glass
            side: 28
            name: "Nouveau ticket"
            hint: Hints.newIssue
            symbol: "square.and.pencil"
            onClicked: CreateScreen.open(root.store, "")
        }
    }

    When {
        shown: root.isMenuOpen

        Item {
            PopupMenu {
                parent: button
                y: root.height - button.y
                title: "Espace"
                onClosed: root.isMenuOpen = false
                Component.onCompleted: open()

                PopupMenuItem {
                    enabled: false
                    text: root.workspace.userName
                    visible: text !== ""
                    height: visible ? implicitHeight : 0
                }

                PopupMenuItem {
                    enabled: false
                    text: root.workspace.userEmail
                    visible: text !== ""
                    height: visible ? implicitHeight : 0
                }

                PopupMenuSeparator {
                    visible: root.store.hasMe
                    height: visible ? implicitHeight : 0
                }

                PopupMenuItem {
                    text: "Réglages…"
                    symbol: "gear"
                    onTriggered: root.store.run(Commands.Command.OpenSettings)
                }

                PopupMenuItem {
                    text: "Ouvrir " + root.store.siteName
                    symbol: "safari"
                    onTriggered: root.store.openSite()
                }

                PopupMenuItem {
                    text: root.store.isDemo ? "Quitter le mode démo" : "Se déconnecter"
                    symbol: "rectangle.portrait.and.arrow.right"
                    onTriggered: root.store.signOut()
                }
            }
        }
    }
}
