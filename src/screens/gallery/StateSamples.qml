import QtQuick
import Velmora.Gallery
import Velmora.Kit
import Velmora.Theme

/// Every control in each of its states.
Column {
    Row {
        x: 130
        height: 24

        Repeater {
            model: ["repos", "survol", "pressé", "clavier", "inactif"]

            AppText {
                required property string modelData

                width: 150
                text: modelData
                role: TypeScale.Caption
                weight: Font.DemiBold
                color: Theme.text3
            }
        }
    }

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
        caption: "interrupteur"
        sample: Component { ToggleSwitch { name: "Clé"; checked: true } }
    }

    StateRow {
        caption: "interrupteur, éteint"
        sample: Component { ToggleSwitch { name: "Clé" } }
    }

    StateRow {
        caption: "case cochée"
        sample: Component { RowCheckBox { name: "Choisir"; checked: true } }
    }

    StateRow {
        caption: "case"
        sample: Component { RowCheckBox { name: "Choisir" } }
    }

    StateRow {
        caption: "dépliage"
        sample: Component { DisclosureButton { text: "Détails"; expanded: true } }
    }

    StateRow {
        caption: "champ"
        sample: Component { InputField { name: "Canal"; text: "Canal"; width: 130 } }
    }

    StateRow {
        caption: "champ secret"
        sample: Component { SecureField { name: "Token"; secret: "secret"; width: 130 } }
    }

    StateRow {
        caption: "recherche"
        sample: Component { SearchField { name: "Filtrer"; placeholderText: "Filtrer"; width: 130 } }
    }

    StateRow {
        caption: "ligne latérale"
        sample: Component { SidebarRow { text: "Mes tickets"; symbol: "tray.full"; count: "7"; width: 140 } }
    }
}
