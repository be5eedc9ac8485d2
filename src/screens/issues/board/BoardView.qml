pragma ComponentBehavior: Bound

import QtQuick
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

    readonly property int columnWidth: Metrics.boardColumnWidth
    readonly property int columnGap: Metrics.boardColumnGap
    readonly property int sidePadding: Metrics.boardPadding

    function openFocusedMenu() {
        columnScroller.revealAtOnce();
        (columnItems.itemAt(store.board.columnOfKey(store.focusedKey)) as BoardColumn)?.revealFocusedCard();
        const card = glide.itemOf(store.focusedKey);
        if (card)
            contextMenu.open(store.focusedKey, card, 12, 24);
    }

    // Takes the focus from any text field, so that key commands work immediately after a click.
    function click(key: string, modifiers: int) {
        board.forceActiveFocus(Qt.MouseFocusReason);
        store.handleClick(key, modifiers);
    }

    CardLook {
        id: look
    }

    BoardDrops {
        id: drops
        store: root.store
    }

    Binding {
        target: root.store
        property: "pageLength"
        value: Math.floor(columns.height / Metrics.boardCardTypical)
        when: root.visible
        restoreMode: Binding.RestoreNone
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

        ContextMenuKey.onPressed: root.openFocusedMenu()

        Accessible.role: Accessible.Grouping
        Accessible.name: root.store.scopeTitle + ", " + root.store.subtitle

        Row {
            id: columns
            x: root.sidePadding
            y: Metrics.gapMedium
            height: board.height - y - Metrics.paneMargin
            spacing: root.columnGap

            Repeater {
                id: columnItems
                model: root.store.board

                BoardColumn {
                    required property int index

                    width: root.columnWidth
                    height: columns.height
                    focusedKey: root.store.focusedKey
                    cardStyle: look
                    hasKeyboard: board.activeFocus
                    clearance: root.store.isSelecting ? Metrics.selectionBarRoom : 0
                    onCardClicked: (key, modifiers) => root.click(key, modifiers)
                    onMenuRequested: (key, card, x, y) => root.contextMenu.open(key, card, x, y)
                    onPickRequested: (kind, key, card, cell) => root.picker.open(kind, key, card, cell)
                    onDragBegun: (key, card) => root.drag.begin(key, card)
                    menuKey: root.contextMenu.key
                    isTargeted: index === drop.column
                    dragY: drop.drag.y - columns.y
                    onNewIssueRequested: CreateScreen.open(root.store, "")
                }
            }
        }
    }

    ListFocusRing {
        list: board
        focusedKey: root.store.focusedKey
    }

    Scrolling {
        view: board
        ground: Theme.content
        isHorizontal: true
        isAnimating: glide.isRunning
        onScrolled: columnScroller.stop()
    }

    // One drop area serves all columns, because the board scrolls below a resting drag and the columns receive no event
    // for that.
    DropArea {
        id: drop

        // The index of the column under the drag, or -1.
        readonly property int column: containsDrag
            ? drops.columnAt(drag.x + board.contentX - root.sidePadding, root.columnWidth, root.columnGap) : -1

        anchors.fill: board
        onEntered: drag => drag.accepted = drag.hasText
        onDropped: drop => {
            if (drops.dropOn(drop.text, column))
                drop.accept(Qt.CopyAction);
        }
    }

    EdgeScroller {
        running: drop.containsDrag
        view: board
        position: drop.drag.x
        isHorizontal: true
    }

    // Holds the cards that are moving from one column to another.
    Item {
        id: flight
        anchors.fill: board
        clip: true
        Accessible.ignored: true
    }

    Glide {
        id: glide
        store: root.store
        view: board
        carrier: flight
        ghost: Component {
            CardFace {
                acceptedButtons: Qt.NoButton
            }
        }
        columns: root.store.board
        duration: Motion.stateDuration
    }

    FocusedColumnScroller {
        id: columnScroller
        flickable: board
        board: root.store.board
        focusedKey: root.store.focusedKey
        firstLeft: root.sidePadding
        columnWidth: root.columnWidth
        columnGap: root.columnGap
    }
}
