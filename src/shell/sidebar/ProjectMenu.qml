import QtQuick
import Velmora.Kit
import Velmora.Model
import Velmora.State

// The menu of a project in the sidebar.
PopupMenu {
    id: root

    required property AppStore store
    required property project project
    required property bool isFavorite

    title: project.name

    PopupMenuItem {
        text: root.isFavorite ? "Retirer des favoris" : "Ajouter aux favoris"
        symbol: root.isFavorite ? "star.slash" : "star"
        onTriggered: root.store.toggleFavorite(root.project.key)
    }

    PopupMenuItem {
        text: "Nouveau ticket dans " + root.project.name
        symbol: "square.and.pencil"
        onTriggered: CreateScreen.open(root.store, root.project.key)
    }
}
