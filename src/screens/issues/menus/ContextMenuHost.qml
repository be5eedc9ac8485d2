pragma ComponentBehavior: Bound

import QtQuick
import Velmora.Issues
import Velmora.Kit
import Velmora.State

// The context menu of the rows or cards inside this item. It exists only while it is open.
Item {
    id: root

    required property AppStore store

    property bool isOpen: false
    // The key of the issue whose menu is open. Empty while the menu is closed.
    property string key: ""
    property point place

    // Opens the menu for an issue, at a point of an item.
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
