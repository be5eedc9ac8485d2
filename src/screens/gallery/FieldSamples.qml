import QtQuick
import QtQuick.Templates as T
import Velmora.Gallery
import Velmora.Kit

/// Text fields and rows in each of their states.
Column {
    id: root

    StateNames {}

    StateRow {
        caption: "champ"
        sample: Component { InputField { name: "Canal"; text: "Canal"; width: 130 } }
    }

    StateRow {
        caption: "champ vide"
        sample: Component { InputField { name: "Adresse"; placeholderText: "mon-equipe"; width: 130 } }
    }

    StateRow {
        caption: "champ, erreur"
        sample: Component { InputField { name: "Adresse"; text: "http:/"; problem: "Adresse inconnue"; width: 130 } }
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
        caption: "recherche, texte"
        sample: Component { SearchField { name: "Filtrer"; text: "jeton"; width: 130 } }
    }

    StateRow {
        height: 88
        caption: "zone de texte"
        sample: Component { InputArea { name: "Texte"; text: "Le jeton expire\naprès 24 h."; width: 130 } }
    }

    StateRow {
        height: 88
        caption: "zone vide"
        sample: Component { InputArea { name: "Texte"; placeholderText: "Décris le ticket"; width: 130 } }
    }

    StateRow {
        height: 88
        caption: "zone, erreur"
        sample: Component { InputArea { name: "Texte"; text: "Trop long"; problem: "Trop long"; width: 130 } }
    }

    StateRow {
        caption: "ligne latérale"
        sample: Component { SidebarRow { text: "Mes tickets"; symbol: "tray.full"; count: "7"; width: 140 } }
    }

    StateRow {
        caption: "ligne latérale, choisie"
        sample: Component { SidebarRow { text: "Mes tickets"; symbol: "tray.full"; selected: true; width: 140 } }
    }

    StateRow {
        caption: "ligne de menu"
        sample: Component { PopupMenuItem { text: "Copier"; symbol: "number"; shortcut: "Ctrl+C"; width: 140 } }
    }

    StateRow {
        caption: "ligne de menu, cochée"
        sample: Component { PopupMenuItem { text: "Statut"; checked: true; width: 140 } }
    }

    StateRow {
        height: 54
        caption: "notification"
        sample: Component { ToastCard { message: "Lien copié"; symbol: "link"; isError: false } }
    }

    StateRow {
        height: 48
        caption: "poignée"
        sample: Component {
            SplitHandle { name: "Largeur"; value: 1; minimum: 0; maximum: 2; standard: 1; height: 40 }
        }
    }

    StateRow {
        height: 60
        caption: "défilement"
        sample: Component { OverlayScrollBar { orientation: Qt.Vertical; size: 0.4; height: 56; policy: T.ScrollBar.AsNeeded } }
    }
}
