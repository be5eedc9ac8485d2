pragma ComponentBehavior: Bound

import QtQuick
import Qt.labs.qmlmodels
import Velmora.Issues
import Velmora.Kit
import Velmora.Model
import Velmora.State
import Velmora.Theme

// Every visible issue as a row of fixed height, in groups whose headers stay at the top while their rows scroll.
FocusScope {
    id: root

    required property AppStore store
    required property ContextMenuHost contextMenu
    required property PickerHost picker
    required property DragHost drag

    readonly property bool isCompact: store.density === Model.RowDensity.Compact
    readonly property int rowHeight: isCompact ? Metrics.rowCompactHeight : Metrics.rowHeight
    readonly property int headerHeight: isCompact ? Metrics.groupHeaderCompactHeight : Metrics.groupHeaderHeight
    // The row under the pointer.
    property IssueRow hotRow: null

    function openFocusedMenu() {
        scroller.revealAtOnce();
        const row = glide.itemOf(store.focusedKey);
        if (row)
            contextMenu.open(store.focusedKey, row, 68, rowHeight);
    }

    // Takes the focus from any text field, so that key commands work immediately after a click.
    function click(key: string, modifiers: int) {
        list.forceActiveFocus(Qt.MouseFocusReason);
        store.handleClick(key, modifiers);
    }

    function newIssueIn(header: issueListHeader) {
        CreateScreen.open(store, header.hasProject ? header.projectOrEmpty.key : "");
    }

    RowColumns {
        id: columns
        store: root.store
    }

    RowLook {
        id: look
        display: root.store.display
        keyWidth: columns.keyWidth
        updatedWidth: columns.updatedWidth
    }

    Binding {
        target: root.store
        property: "pageLength"
        value: Math.floor((list.height - root.headerHeight) / root.rowHeight)
        when: root.visible
        restoreMode: Binding.RestoreNone
    }

    ListView {
        id: list
        anchors.fill: parent
        focus: true
        activeFocusOnTab: true
        clip: true
        model: root.store.issueList
        boundsBehavior: Flickable.StopAtBounds
        // Lets the last row be scrolled clear of the selection bar.
        bottomMargin: Metrics.selectionBarRoom
        reuseItems: true
        cacheBuffer: 400
        pixelAligned: true
        // The store knows the focused row. A current row of the list itself would change with every insertion or
        // removal above it, and the invisible highlight would follow at 400 px per second, which causes 60 frames per
        // second.
        currentIndex: -1
        highlightFollowsCurrentItem: false
        keyNavigationEnabled: false
        // There are no move transitions, because an interrupted one leaves its rows between two positions. `Glide`
        // below animates moves.

        ContextMenuKey.onPressed: root.openFocusedMenu()

        Accessible.role: Accessible.List
        Accessible.name: root.store.scopeTitle + ", " + root.store.subtitle

        // A row that is kept for reuse would otherwise still be exposed to screen readers.
        delegate: DelegateChooser {
            role: "kind"

            DelegateChoice {
                roleValue: IssueListEnums.Header

                GroupHeader {
                    readonly property string glideKey: "h:" + header.groupId
                    width: list.width
                    height: root.headerHeight
                    onToggled: root.store.toggleGroup(header.groupId)
                    onNewIssueRequested: root.newIssueIn(header)
                    ListView.onPooled: visible = false
                    ListView.onReused: visible = true
                }
            }

            DelegateChoice {
                roleValue: IssueListEnums.Issue

                IssueRow {
                    id: row
                    readonly property string glideKey: issue.key
                    width: list.width
                    height: root.rowHeight
                    style: look
                    isSelecting: root.store.isSelecting
                    hasKeyboard: list.activeFocus
                    hasMenu: root.contextMenu.key === issue.key
                    onHoverChanged: if (isHovered) root.hotRow = row
                    onClicked: (position, modifiers) => root.click(issue.key, modifiers)
                    onCheckToggled: root.store.toggleCheck(issue.key)
                    onMenuRequested: (x, y) => root.contextMenu.open(issue.key, row, x, y)
                    onPickRequested: (kind, cell) => root.picker.open(kind, issue.key, row, cell)
                    onDragBegun: root.drag.begin(issue.key, row)
                    ListView.onPooled: visible = false
                    ListView.onReused: visible = true
                }
            }
        }
    }

    // At the upper edge, the rows disappear under the pinned header.
    Scrolling {
        view: list
        ground: Theme.content
        fadesAtTop: false
        isAnimating: glide.isRunning
        onScrolled: scroller.stop()
    }

    Glide {
        id: glide
        store: root.store
        view: list
        rows: root.store.issueList
        duration: Motion.stateDuration
    }

    HoverHint {
        face: root.hotRow
    }

    // The header of the topmost rows, which the next header pushes away.
    GroupHeader {
        id: pinned

        readonly property int topRow: {
            list.contentY;
            root.store.issueList.revision;
            return list.indexAt(1, list.contentY + 1);
        }
        readonly property Item nextHeader: list.itemAtIndex(root.store.issueList.headerRowAfter(topRow))

        visible: topRow >= 0 && list.contentY > list.originY
        width: list.width
        height: root.headerHeight
        y: nextHeader ? Math.min(0, nextHeader.y - list.contentY - height) : 0
        isPinned: true
        header: root.store.issueList.headerAt(root.store.issueList.headerRowOf(topRow))
        onToggled: root.store.toggleGroup(header.groupId)
        onNewIssueRequested: root.newIssueIn(header)
    }

    ListFocusRing {
        list: list
        focusedKey: root.store.focusedKey
    }

    FocusedRowScroller {
        id: scroller
        list: list
        rows: root.store.issueList
        focusedKey: root.store.focusedKey
        headerHeight: root.headerHeight
        rowHeight: root.rowHeight
        clearance: root.store.isSelecting ? Metrics.selectionBarRoom : 0
    }
}
