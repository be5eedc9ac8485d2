pragma ComponentBehavior: Bound

import QtQuick
import Velmora.Issues
import Velmora.Kit
import Velmora.State
import Velmora.Theme

// The toolbar: title and count on the left, commands and the search field on the right.
Item {
    id: root

    required property AppStore store
    required property Filters filters
    property bool hasSidebarButton: false
    // The top of the title.
    readonly property int titleTop: 11

    signal sidebarWanted()
    signal searchLeft()

    function focusSearch() {
        search.open()
    }

    implicitHeight: Metrics.toolbarHeight

    GlassCapsule {
        id: sidebarButton
        visible: root.hasSidebarButton
        x: Metrics.gap
        anchors.verticalCenter: parent.top
        anchors.verticalCenterOffset: Metrics.toolbarCentre
        width: Metrics.capsuleCellWidth + 2 * Metrics.capsuleInset

        ToolbarCell {
            anchors.centerIn: parent
            name: "Afficher la barre latérale"
            symbol: "shell.sidebar"
            onClicked: root.sidebarWanted()
        }
    }

    Column {
        anchors.left: parent.left
        anchors.leftMargin: root.hasSidebarButton ? sidebarButton.x + sidebarButton.width + Metrics.gapMedium : Metrics.contentInset
        anchors.right: commands.left
        anchors.rightMargin: Metrics.gap
        y: root.titleTop
        visible: !search.coversTitle

        AppText {
            width: parent.width
            role: TypeScale.Headline
            text: root.store.scopeTitle
            elide: Text.ElideRight
            Accessible.role: Accessible.Heading
            Accessible.name: text
        }

        ListCount {
            width: parent.width
            store: root.store
        }
    }

    Row {
        id: commands
        anchors.right: parent.right
        anchors.rightMargin: Metrics.gap
        anchors.verticalCenter: parent.top
        anchors.verticalCenterOffset: Metrics.toolbarCentre
        spacing: Metrics.gap

        LayoutSwitch {
            layout: root.store.layout
            onChosen: layout => root.store.layout = layout
        }

        GlassCapsule {
            width: cells.width + 2 * Metrics.capsuleInset

            Row {
                id: cells
                anchors.centerIn: parent

                FilterButton {
                    filters: root.filters
                }

                DisplayOptionsButton {
                    store: root.store
                }

                ToolbarCell {
                    name: "Actualiser"
                    hint: Hints.reload
                    symbol: "arrow.clockwise"
                    onClicked: root.store.refresh()
                }
            }
        }

        IconButton {
            look: IconButton.Prominent
            name: "Nouveau ticket"
            hint: Hints.newIssue
            symbol: "plus"
            onClicked: root.store.newIssue()
        }

        ToolbarSearch {
            id: search
            store: root.store
            room: root.width
            onFinished: root.searchLeft()
        }
    }
}
