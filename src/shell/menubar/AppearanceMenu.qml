import QtQuick
import Velmora.Kit
import Velmora.Model
import Velmora.State

// The choice of the program's appearance.
PopupMenu {
    id: root

    required property AppStore store

    title: "Apparence"

    PopupMenuItem {
        text: "Système"
        checkable: true
        checked: root.store.appearance === Model.AppearanceMode.System
        onTriggered: root.store.appearance = Model.AppearanceMode.System
    }

    PopupMenuItem {
        text: "Clair"
        checkable: true
        checked: root.store.appearance === Model.AppearanceMode.Light
        onTriggered: root.store.appearance = Model.AppearanceMode.Light
    }

    PopupMenuItem {
        text: "Sombre"
        checkable: true
        checked: root.store.appearance === Model.AppearanceMode.Dark
        onTriggered: root.store.appearance = Model.AppearanceMode.Dark
    }
}
