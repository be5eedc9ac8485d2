pragma ComponentBehavior: Bound

import QtQml
import QtQuick
import QtQuick.Templates as T
import Velmora.Issues
import Velmora.Kit

// The filter menu: a submenu for each kind of filter, and the command that removes all filters.
PopupMenu {
    id: root

    required property Filters filters

    title: "Filtrer"

    Instantiator {
        model: root.filters.sections()
        onObjectAdded: (index, object) => root.insertMenu(index, object as T.Menu)
        onObjectRemoved: (index, object) => root.removeMenu(object as T.Menu)

        MenuSectionMenu {
            required property menuSection modelData
            required property int index

            section: modelData
            isReached: root.currentIndex === index
            onChosen: choice => root.filters.toggle(modelData.id, choice.id)
        }
    }

    PopupMenuSeparator {
        visible: !root.filters.isEmpty
        height: visible ? implicitHeight : 0
    }

    PopupMenuItem {
        visible: !root.filters.isEmpty
        height: visible ? implicitHeight : 0
        text: "Effacer les filtres"
        symbol: "xmark.circle"
        onTriggered: root.filters.clear()
    }
}
