pragma ComponentBehavior: Bound

import QtQuick
import Velmora.Attachments
import Velmora.Kit
import Velmora.Theme

/// The tiles of an issue. The grid is one stop of the tab key, and each button that cancels an upload is another. The
/// arrow keys, Home and End move between the tiles; Space previews a file, Return opens it, Delete asks whether to
/// delete it or cancels an upload, and the menu key opens its menu.
Item {
    id: root

    required property IssueFiles files
    required property AttachmentPreviewer previewer
    property int currentIndex: 0
    readonly property real tileHeight: 139
    readonly property int columns: Math.max(1, Math.floor((width + flow.spacing) / (140 + flow.spacing)))
    /// The window's key map leaves the keys of a control that shows the focus to it.
    readonly property bool visualFocus: activeFocus

    signal revealRequested(box: rect)

    function move(by: int) {
        currentIndex = Math.max(0, Math.min(files.tileCount - 1, currentIndex + by));
    }

    // From the button of a tile, the keys go back to the tiles. The wanted tile may not exist yet.
    function walk(by: int) {
        forceActiveFocus(Qt.TabFocusReason);
        files.tiles.addAll();
        move(by);
    }

    function reach(index: int) {
        currentIndex = index;
        reveal();
    }

    // A tile goes. The focus of its button does not go with it.
    function leave(slot: Item) {
        if (slot.activeFocus)
            forceActiveFocus(Qt.TabFocusReason);
        move(0);
    }

    function reveal() {
        const slot = current();
        // A tile that has just been created has no place yet.
        flow.forceLayout();
        if (slot)
            revealRequested(Qt.rect(slot.x, slot.y, slot.width, slot.height));
    }

    function current(): FileTileSlot {
        return slots.itemAt(currentIndex) as FileTileSlot;
    }

    function openMenu(slot: FileTileSlot, x: real, y: real) {
        currentIndex = slot.index;
        forceActiveFocus(Qt.MouseFocusReason);
        menu.open(slot.file, slot.mapToItem(root, x, y));
    }

    // Includes the tiles that do not exist yet, so that what follows the grid stays in its place.
    implicitHeight: Math.max(0, Math.ceil(files.tileCount / columns) * (tileHeight + flow.spacing) - flow.spacing)
    height: implicitHeight
    activeFocusOnTab: true
    OwnKeys.walksRows: true
    onActiveFocusChanged: if (activeFocus) reveal()
    onCurrentIndexChanged: if (activeFocus) reveal()
    Accessible.role: Accessible.List
    Accessible.name: "Fichiers joints"

    Keys.onLeftPressed: walk(-1)
    Keys.onRightPressed: walk(1)
    Keys.onUpPressed: walk(-columns)
    Keys.onDownPressed: walk(columns)
    Keys.onSpacePressed: current()?.preview()
    Keys.onReturnPressed: current()?.open()
    Keys.onEnterPressed: current()?.open()
    Keys.onDeletePressed: current()?.requestDeletion()
    Keys.onPressed: event => {
        event.accepted = event.key === Qt.Key_Home || event.key === Qt.Key_End;
        if (event.accepted)
            walk(event.key === Qt.Key_Home ? -root.files.tileCount : root.files.tileCount);
    }
    ContextMenuKey.onPressed: current()?.openMenu()

    // What was asked about a file of another issue has no object any more.
    Connections {
        target: root.files

        function onKeyChanged() {
            menu.isOpen = false;
            question.isOpen = false;
            root.currentIndex = 0;
        }
    }

    Grid {
        id: flow

        columns: root.columns
        spacing: Metrics.gapMedium

        Repeater {
            id: slots

            model: root.files.tiles
            onItemRemoved: (index, item) => root.leave(item)

            FileTileSlot {
                id: slot

                width: Math.min(141, (root.width - (root.columns - 1) * flow.spacing) / root.columns)
                height: root.tileHeight
                isCurrent: root.activeFocus && index === root.currentIndex
                previewer: root.previewer
                onPressed: root.currentIndex = index
                onMenuRequested: (x, y) => root.openMenu(slot, x, y)
                onDeletionRequested: question.ask(file)
                onCancelRequested: root.files.cancel(upload)
                onActiveFocusChanged: if (activeFocus) root.reach(index)
            }
        }
    }

    TileMenuHost {
        id: menu

        previewer: root.previewer
        onDeletionRequested: file => question.ask(file)
    }

    DeletionQuestion {
        id: question

        onConfirmed: file => root.files.remove(file)
    }
}
