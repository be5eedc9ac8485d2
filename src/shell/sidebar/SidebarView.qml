pragma ComponentBehavior: Bound

import QtQuick
import Velmora.Kit
import Velmora.Model
import Velmora.Shell
import Velmora.State
import Velmora.Theme
import Velmora.UpdateScreens

// The left pane, in which the user chooses the list of issues to show.
FocusScope {
    id: root

    required property AppStore store
    required property UpdateScreens updates
    // The sidebar is shown above the issues and not beside them. A choice or Escape closes it.
    property bool isFloating: false

    signal dismissed()

    // Opens the menu of the project that is shown.
    function openProjectMenu() {
        list.positionViewAtIndex(workspace.projectRow, ListView.Contain);
        const line = list.itemAtIndex(workspace.projectRow) as SidebarLine;
        line?.menuRequested(0, line.height);
    }

    onVisibleChanged: if (visible && isFloating) list.forceActiveFocus(Qt.ShortcutFocusReason)

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

        // Tells the key monitor to leave the arrow keys and Return to this list, which moves through its rows itself.
        OwnKeys.walksRows: true

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

        ContextMenuKey.onPressed: root.openProjectMenu()
        Keys.onUpPressed: workspace.selectNeighbour(-1)
        Keys.onDownPressed: workspace.selectNeighbour(1)

        delegate: SidebarLine {
            id: line

            required property issueScope scope
            required property bool isFavorite
            property bool isMenuOpen: false
            property point menuPlace

            function openMenu(x: real, y: real) {
                menuPlace = Qt.point(x, y);
                isMenuOpen = true;
            }

            width: list.width
            isFocused: isSelected && list.activeFocus
            onChosen: {
                root.store.selectInSidebar(scope);
                root.dismissed();
            }
            onMenuRequested: (x, y) => openMenu(x, y)

            When {
                shown: line.isMenuOpen

                Item {
                    ProjectMenu {
                        store: root.store
                        project: line.project
                        isFavorite: line.isFavorite
                        onClosed: line.isMenuOpen = false
                        Component.onCompleted: popup(line, line.menuPlace.x, line.menuPlace.y)
                    }
                }
            }
        }
    }

    Scrolling {
        view: list
        ground: Theme.pane
    }

    Column {
        id: footer
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        anchors.margins: Metrics.gapMedium
        spacing: Metrics.gapMedium

        UpdateBadge {
            width: parent.width
            screens: root.updates
        }

        DemoBadge {
            width: parent.width
            visible: root.store.isDemo
            onClicked: root.store.run(Commands.Command.OpenSettings)
        }
    }
}
