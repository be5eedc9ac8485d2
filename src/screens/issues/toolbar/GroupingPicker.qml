import QtQuick
import Velmora.Kit
import Velmora.State

// Chooses the groups of the list. The choices are in the order of `Grouping`.
MenuPicker {
    id: root

    required property AppStore store

    name: "Regrouper par"
    choices: ["Statut", "Assigné", "Priorité", "Projet", "Aucun"]
    current: root.store.grouping
    onChosen: index => root.store.grouping = index
}
