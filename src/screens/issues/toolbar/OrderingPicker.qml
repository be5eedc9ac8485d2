import QtQuick
import Velmora.Kit
import Velmora.State

// Chooses the order of the issues within a group. The choices are in the order of `Ordering`.
MenuPicker {
    id: root

    required property AppStore store

    name: "Trier par"
    choices: ["Priorité", "Mise à jour", "Création", "Numéro", "Ordre Jira"]
    current: root.store.ordering
    onChosen: index => root.store.ordering = index
}
