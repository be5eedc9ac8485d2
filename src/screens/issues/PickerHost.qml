pragma ComponentBehavior: Bound

import QtQuick
import Velmora.Issues
import Velmora.Kit
import Velmora.Options
import Velmora.State

// The picker of the cells in it, which exists while it is open. It stands at the place of its cell, and not in it: a
// reload may take the row away.
Item {
    id: root

    required property AppStore store

    property bool isOpen: false
    property Item cell: null
    property int alignment: PopoverPlacement.Leading

    signal dismissed()

    // Opens the picker of a kind (`PropertyOptions.Kind`) for an issue at its cell, or closes it if it is open there.
    function toggle(kind: int, key: string, at: Item) {
        if (isOpen && cell === at)
            dismissed();
        else
            open(kind, key, at);
    }

    function open(kind: int, key: string, at: Item) {
        isOpen = false;
        cell = at;
        alignment = kind === PropertyOptions.Assignee ? PopoverPlacement.Trailing : PopoverPlacement.Leading;
        options.aim(kind, key);
        place(at.mapToItem(root, 0, 0));
    }

    function place(corner: point) {
        spot.x = corner.x;
        spot.y = corner.y;
        isOpen = true;
    }

    RowOptions {
        id: options
        store: root.store
    }

    Item {
        id: spot
        width: root.cell?.width ?? 0
        height: root.cell?.height ?? 0
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
                // A press on another cell takes the picker there.
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
