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
    property rect cell
    readonly property int alignment: options.kind === Commands.PickerKind.Assignee ? PopoverPlacement.Trailing
        : PopoverPlacement.Leading

    // Opens the picker of a kind (`Commands.PickerKind`) for an issue at a cell of its row or card.
    function open(kind: int, key: string, face: Item, spot: rect) {
        isOpen = false;
        options.aim(kind, key);
        cell = face.mapToItem(root, spot);
        isOpen = true;
    }

    RowOptions {
        id: options
        store: root.store
    }

    When {
        shown: root.isOpen

        Item {
            Popover {
                id: popover
                parent: root
                spot: root.cell
                name: options.placeholder
                width: 260
                alignment: root.alignment
                // As the design shows it.
                overhang: root.alignment === PopoverPlacement.Trailing ? 30 : 0
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
        }
    }
}
