pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Velmora.Issues
import Velmora.Kit
import Velmora.State
import Velmora.Theme

// Every visible issue as a card in the column of its status.
FocusScope {
    id: root

    required property AppStore store
    required property ContextMenuHost contextMenu
    required property PickerHost picker
    required property DragHost drag

    readonly property int columnWidth: 296
    readonly property int columnGap: 12
    readonly property int sidePadding: 16

    BoardDrops {
        id: drops
        store: root.store
    }

    Flickable {
        id: board
        anchors.fill: parent
        focus: true
        activeFocusOnTab: true
        clip: true
        contentWidth: columns.width + 2 * root.sidePadding
        contentHeight: height
        flickableDirection: Flickable.HorizontalFlick
        boundsBehavior: Flickable.StopAtBounds
        pixelAligned: true

        Accessible.role: Accessible.Grouping
        Accessible.name: root.store.scopeTitle + ", " + root.store.subtitle

        Row {
            id: columns
            x: root.sidePadding
            y: Metrics.gapMedium
            height: board.height - y - Metrics.paneMargin
            spacing: root.columnGap

            Repeater {
                model: root.store.board

                BoardColumn {
                    id: column
                    width: root.columnWidth
                    height: columns.height
                    focusedKey: root.store.focusedKey
                    clearance: root.store.isSelecting ? Metrics.toastBottomAboveBar : 0
                    onCardClicked: (key, modifiers) => root.store.handleClick(key, modifiers)
                    onMenuRequested: (key, card, x, y) => root.contextMenu.open(key, card, x, y)
                    onPickRequested: (kind, key, cell) => root.picker.toggle(kind, key, cell)
                    onDragBegun: (key, handler) => root.drag.begin(key, handler)
                    onDropped: text => drops.drop(text, status)
                    onDraggedOver: x => sideways.position = mapToItem(board, x, 0).x
                    onIsTargetedChanged: sideways.target(column)
                    onNewIssueRequested: CreateScreen.open(root.store, "")
                }
            }
        }

        T.ScrollBar.horizontal: OverlayScrollBar {}
    }

    EdgeScroller {
        id: sideways

        property BoardColumn over: null

        // Columns tell that a drag comes before the last one tells that it goes.
        function target(column: BoardColumn) {
            over = column.isTargeted ? column : over === column ? null : over;
        }

        running: over !== null
        view: board
        position: 0
        isHorizontal: true
    }

    FocusedColumnScroller {
        flickable: board
        board: root.store.board
        focusedKey: root.store.focusedKey
        firstLeft: root.sidePadding
        columnWidth: root.columnWidth
        columnGap: root.columnGap
    }
}
