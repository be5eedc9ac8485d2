pragma ComponentBehavior: Bound

import QtQuick
import Velmora.Issues
import Velmora.Kit
import Velmora.State

// The context menu of the rows or cards in it, which exists while it is open.
Item {
    id: root

    required property AppStore store

    property bool isOpen: false
    // The issue on which it was opened; empty while it is closed.
    property string key: ""
    property point place

    // Opens on the issue, at a point of an item.
    function open(key: string, item: Item, x: real, y: real) {
        issueMenu.prepare(key);
        root.key = key;
        place = mapFromItem(item, x, y);
        isOpen = true;
    }

    function forget() {
        isOpen = false;
        key = "";
    }

    IssueMenu {
        id: issueMenu
        store: root.store
    }

    When {
        shown: root.isOpen

        Item {
            IssueContextMenu {
                content: issueMenu
                onClosed: root.forget()
                Component.onCompleted: popup(root, root.place.x, root.place.y)
            }
        }
    }
}
