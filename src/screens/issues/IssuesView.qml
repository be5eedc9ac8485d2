pragma ComponentBehavior: Bound

import QtQuick
import Velmora.Issues
import Velmora.Kit
import Velmora.Model
import Velmora.State
import Velmora.Theme

// The frame of the list: title and commands above, and below them the issues or the screen shown in their place.
FocusScope {
    id: root

    required property AppStore store
    // There is no sidebar beside the list, so the toolbar has a button that opens it.
    property bool hasSidebarButton: false

    signal sidebarWanted()

    function focusSearch() {
        toolbar.focusSearch();
    }

    function focusIssues() {
        const layout = root.store.layout === Model.LayoutMode.Board ? boardPart : listPart;
        layout.forceActiveFocus(Qt.ShortcutFocusReason);
    }

    // The item that had the focus is gone: the button of an empty screen, or a button of a bar that was removed.
    Connections {
        target: root.Window.window

        function onActiveFocusItemChanged() {
            const holder = root.Window.activeFocusItem;
            if (holder === root || holder === body)
                root.focusIssues();
        }
    }

    IssuesContent {
        id: content
        store: root.store
    }

    Filters {
        id: activeFilters
        store: root.store
    }

    IssuesToolbar {
        id: toolbar
        width: parent.width
        store: root.store
        filters: activeFilters
        hasSidebarButton: root.hasSidebarButton
        onSidebarWanted: root.sidebarWanted()
        onSearchLeft: root.focusIssues()
    }

    Column {
        id: heads
        anchors.top: toolbar.bottom
        width: parent.width

        Item {
            visible: recap.shown
            width: parent.width
            height: recap.height + Metrics.gapMedium

            LatePart {
                id: recap
                x: Metrics.paneMargin
                width: parent.width - 2 * x
                shown: content.isRecap
                onWanted: setSource("toolbar/RecapHeader.qml", { store: root.store })
            }
        }

        FilterBarSlot {
            width: parent.width
            filters: activeFilters
        }
    }

    FocusScope {
        id: body
        focus: true
        anchors.top: heads.bottom
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.bottom: parent.bottom

        When {
            shown: content.kind === IssuesContent.Loading

            LoadingRows {
                width: body.width
                height: body.height
            }
        }

        When {
            shown: content.kind === IssuesContent.Failed

            UnavailableScreen {
                width: body.width
                height: body.height
                symbol: "exclamationmark.triangle"
                title: "Impossible de charger les tickets"
                description: root.store.loadError
                action: "Réessayer"
                isProminent: true
                onActionChosen: root.store.refresh()
            }
        }

        LayoutPart {
            id: boardPart
            anchors.fill: parent
            inSight: content.kind === IssuesContent.Issues && root.store.layout === Model.LayoutMode.Board
            other: listPart
            onWanted: setSource("board/BoardView.qml", { store: root.store, focus: true, contextMenu: rowMenu,
                                                   picker: rowPicker, drag: rowDrag })
        }

        LayoutPart {
            id: listPart
            x: Metrics.paneMargin
            width: body.width - 2 * x
            height: body.height
            focus: true
            inSight: content.kind === IssuesContent.Issues && root.store.layout === Model.LayoutMode.List
            other: boardPart
            onWanted: setSource("list/IssueListView.qml", { store: root.store, focus: true, contextMenu: rowMenu,
                                                       picker: rowPicker, drag: rowDrag })
        }

        When {
            shown: content.kind === IssuesContent.Empty

            UnavailableScreen {
                width: body.width
                height: body.height
                symbol: content.empty.symbol
                title: content.empty.title
                description: content.empty.description
                action: content.empty.action
                isProminent: content.empty.isProminent
                onActionChosen: content.runEmptyAction()
            }
        }
    }

    SelectionBar {
        anchors.horizontalCenter: parent.horizontalCenter
        anchors.bottom: parent.bottom
        anchors.bottomMargin: Metrics.selectionBarBottom
        store: root.store
    }

    PickerHost {
        id: rowPicker
        anchors.fill: parent
        store: root.store
    }

    DragHost {
        id: rowDrag
        store: root.store
    }

    ContextMenuHost {
        id: rowMenu
        anchors.fill: parent
        store: root.store
    }
}
