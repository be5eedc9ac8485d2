pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Velmora.Kit
import Velmora.Model
import Velmora.Shell
import Velmora.State
import Velmora.Theme

// The left pane: where the user picks what to look at.
FocusScope {
    id: root

    required property AppStore store
    // Over the issues, not beside them; a choice or Escape puts it away.
    property bool isFloating: false

    signal dismissed()

    Keys.onEscapePressed: event => {
        event.accepted = isFloating;
        dismissed();
    }
    onVisibleChanged: if (isFloating) list.forceActiveFocus(Qt.ShortcutFocusReason)

    Workspace {
        id: workspace
        store: root.store
    }

    GlassPanel {
        anchors.fill: parent
        shadow: root.isFloating ? "popover" : "pane"

        PaneGlow {
            anchors.fill: parent
            color: Theme.paneGlow
            radius: Metrics.radiusPane
        }
    }

    WorkspaceHeader {
        id: header
        width: parent.width
        store: root.store
        workspace: workspace
    }

    ListView {
        id: list

        // The key monitor leaves the arrows and Return to a list that walks its own rows.
        readonly property bool walksItsRows: true

        anchors.top: header.bottom
        anchors.topMargin: Metrics.gapSmall
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.bottom: footer.top
        anchors.leftMargin: Metrics.gap
        anchors.rightMargin: Metrics.gap
        focus: true
        activeFocusOnTab: true
        clip: true
        model: root.store.sidebar
        boundsBehavior: Flickable.StopAtBounds
        keyNavigationEnabled: false
        currentIndex: workspace.selectedRow
        highlightFollowsCurrentItem: true
        highlightMoveDuration: 0

        Accessible.role: Accessible.List
        Accessible.name: "Vues et projets"

        Keys.onUpPressed: workspace.selectNeighbour(-1)
        Keys.onDownPressed: workspace.selectNeighbour(1)

        delegate: SidebarLine {
            id: line

            required property issueScope scope
            required property bool isFavorite
            property bool isMenuOpen: false

            width: ListView.view.width
            isFocused: isSelected && list.activeFocus
            onChosen: {
                root.store.selectInSidebar(scope);
                root.dismissed();
            }
            onMenuRequested: isMenuOpen = true

            When {
                shown: line.isMenuOpen

                Item {
                    ProjectMenu {
                        store: root.store
                        project: line.project
                        isFavorite: line.isFavorite
                        onClosed: line.isMenuOpen = false
                        Component.onCompleted: popup()
                    }
                }
            }
        }

        T.ScrollBar.vertical: OverlayScrollBar {}
    }

    Item {
        id: footer
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        anchors.margins: Metrics.gapMedium
        height: badge.visible ? badge.height : 0

        DemoBadge {
            id: badge
            width: parent.width
            visible: root.store.isDemo
            onClicked: root.store.signOut()
        }
    }
}
