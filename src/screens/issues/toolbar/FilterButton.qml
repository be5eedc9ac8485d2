pragma ComponentBehavior: Bound

import QtQuick
import Velmora.Issues
import Velmora.Kit

// The toolbar button for the filter menu, which exists only while it is open.
ToolbarCell {
    id: root

    required property Filters filters

    property bool isOpen: false

    name: "Filtrer"
    symbol: filters.isEmpty ? "line.3.horizontal.decrease" : "line.3.horizontal.decrease.circle.fill"
    active: !filters.isEmpty
    on: isOpen
    onClicked: isOpen = true

    When {
        shown: root.isOpen

        Item {
            FilterMenu {
                filters: root.filters
                onClosed: root.isOpen = false
                Component.onCompleted: popup(root, 0, root.height + 6)
            }
        }
    }
}
