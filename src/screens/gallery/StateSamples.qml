import QtQuick
import Velmora.Gallery
import Velmora.Kit

/// The controls that can be pressed, in each of their states.
Column {
    id: root

    StateNames {}

    StateRow {
        caption: "Bouton"
        sample: Component { PushButton { text: "Réessayer"; look: PushButton.Plain } }
    }

    StateRow {
        caption: "de verre"
        sample: Component { PushButton { text: "Réessayer"; symbol: "arrow.clockwise" } }
    }

    StateRow {
        caption: "principal"
        sample: Component { PushButton { text: "Continuer"; look: PushButton.Prominent } }
    }

    StateRow {
        caption: "destructeur"
        sample: Component { PushButton { text: "Supprimer"; look: PushButton.Prominent; destructive: true } }
    }

    StateRow {
        caption: "destructeur, simple"
        sample: Component { PushButton { text: "Retirer"; look: PushButton.Plain; destructive: true } }
    }

    StateRow {
        caption: "rond"
        sample: Component { IconButton { name: "Ajouter"; symbol: "plus"; look: IconButton.Prominent } }
    }

    StateRow {
        caption: "rond, de verre"
        sample: Component { IconButton { name: "Rechercher"; symbol: "magnifyingglass"; look: IconButton.Glass } }
    }

    StateRow {
        caption: "petit"
        sample: Component { IconButton { name: "Fermer"; symbol: "xmark"; symbolWeight: "bold" } }
    }

    StateRow {
        caption: "cellule"
        sample: Component { ToolbarCell { name: "Liste"; symbol: "list.bullet" } }
    }

    StateRow {
        caption: "puce"
        sample: Component { GlassChip { title: "Étiquettes"; leading: Symbol { name: "tag"; size: 12 } } }
    }

    StateRow {
        caption: "puce principale"
        sample: Component { GlassChip { title: "Étiquettes"; prominent: true } }
    }

    StateRow {
        caption: "menu de choix"
        sample: Component { MenuPicker { name: "Trier"; choices: ["Mise à jour"]; current: 0 } }
    }

    StateRow {
        caption: "choix en segments"
        sample: Component { SegmentedPicker { name: "Vue"; choices: ["Liste", "Carte"]; current: 1 } }
    }

    StateRow {
        caption: "interrupteur"
        sample: Component { ToggleSwitch { name: "Clé"; checked: true } }
    }

    StateRow {
        caption: "interrupteur, éteint"
        sample: Component { ToggleSwitch { name: "Clé" } }
    }

    StateRow {
        caption: "case, cochée"
        sample: Component { CheckBox { text: "Interne"; checked: true } }
    }

    StateRow {
        caption: "case"
        sample: Component { CheckBox { text: "Interne" } }
    }

    StateRow {
        caption: "dépliage"
        sample: Component { DisclosureButton { text: "Détails"; expanded: true } }
    }
}
