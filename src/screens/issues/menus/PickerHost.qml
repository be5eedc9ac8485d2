pragma ComponentBehavior: Bound

import QtQuick
import Velmora.Issues
import Velmora.Kit
import Velmora.Options
import Velmora.State

// The picker for the cells inside this item. It exists only while it is open. It is placed at its cell but is not a
// child of it, because a reload may destroy the row.
Item {
    id: root

    required property AppStore store

    property bool isOpen: false
    property string issueKey: ""
    property rect cell
    readonly property int alignment: options.kind === Commands.PickerKind.Assignee ? PopoverPlacement.Trailing
        : PopoverPlacement.Leading

    signal dismissed()

    // Opens the picker of a kind (`Commands.PickerKind`) for an issue at a cell of its row or card, or closes the
    // picker if it is already open there.
    function toggle(kind: int, key: string, face: Item, cell: rect) {
        if (isOpen && options.kind === kind && issueKey === key)
            dismissed();
        else
            open(kind, key, face.mapToItem(root, cell));
    }

    function open(kind: int, key: string, at: rect) {
        isOpen = false;
        issueKey = key;
        options.aim(kind, key);
        cell = at;
        isOpen = true;
    }

    RowOptions {
        id: options
        store: root.store
    }

    Item {
        id: spot
        x: root.cell.x
        y: root.cell.y
        width: root.cell.width
        height: root.cell.height
    }

    When {
        shown: root.isOpen

        Item {
            Popover {
                id: popover
                parent: spot
                name: options.placeholder
                width: 260
                alignment: root.alignment
                // Not modal, so that a press on another cell moves the picker there.
                modal: false
                closePolicy: Popover.CloseOnEscape | Popover.CloseOnPressOutsideParent
                onClosed: root.isOpen = false
                Component.onCompleted: open()

                When {
                    shown: popover.isShown

                    OptionListView {
                        width: popover.width
                        source: options
                        placeholder: options.placeholder
                        onDone: popover.close()
                    }
                }
            }

            Connections {
                target: root

                function onDismissed() {
                    popover.close();
                }
            }
        }
    }
}
