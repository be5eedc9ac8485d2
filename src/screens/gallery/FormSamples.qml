pragma ComponentBehavior: Bound
import QtQuick
import Velmora.Kit
import Velmora.Theme

/// What forms are made of: tabs, cards with rows, tiles, swatches, a title and a text area.
Item {
    id: root

    Rectangle {
        x: -12
        y: -12
        width: 464
        height: parent.height + 24
        color: Theme.pane
    }

    Column {
        width: 440
        spacing: Metrics.gapSection

        TabList {
            id: tabs

            name: "Réglages"
            count: 3
            current: 1
            onChosen: index => current = index

            Repeater {
                model: ["person.crop.circle", "paintpalette", "keyboard"]

                IconTab {
                    required property int index
                    required property string modelData

                    text: ["Compte", "Apparence", "Raccourcis"][index]
                    symbol: modelData
                    on: index === tabs.current
                    onChosen: tabs.chosen(index)
                }
            }
        }

        FormCard {
            title: "Thème"

            Item {
                width: parent.width
                height: 109

                TilePicker {
                    x: 16
                    y: 14
                    name: "Thème"
                    choices: ["Clair", "Sombre"]
                    current: 1
                    onChosen: index => current = index
                    pictures: [
                        Rectangle { width: 92; height: 60; radius: 9; color: "#F7F7F7" },
                        Rectangle { width: 92; height: 60; radius: 9; color: "#212121" }
                    ]
                }
            }

            Item {
                width: parent.width
                height: 48

                SwatchPicker {
                    id: accents

                    x: 14
                    y: 12
                    name: "Couleur d'accent"
                    choices: ["Indigo", "Bleu", "Violet", "Rose", "Orange", "Vert", "Graphite"]
                    colors: ["#5E6AD2", "#2B7FFF", "#9B5DE5", "#E84A8A", "#F5822A", "#2BA56B", "#767A8A"]
                    current: 0
                    onChosen: index => current = index
                }

                AppText {
                    x: accents.x + accents.width + 16
                    anchors.verticalCenter: parent.verticalCenter
                    text: accents.choices[accents.current]
                    color: Theme.text2
                }
            }
        }

        FormCard {
            title: "Vue des tickets"
            footnote: "Ces réglages valent pour toutes les listes."

            FormRow {
                text: "Densité"

                SegmentedPicker {
                    name: "Densité"
                    choices: ["Confortable", "Compacte"]
                    current: 0
                    onChosen: index => current = index
                }
            }

            FormRow {
                text: "Trier par"

                MenuPicker {
                    name: "Trier par"
                    choices: ["Priorité", "Mise à jour"]
                    current: 0
                    onChosen: index => current = index
                }
            }

            FormRow {
                text: "Afficher les tickets terminés"
                caption: "Le tableau les montre dans leur colonne, la liste dans leur groupe, tout en bas."

                ToggleSwitch {
                    name: "Afficher les tickets terminés"
                    checked: true
                }
            }

            FormRow {
                text: "Regrouper par"
                enabled: false

                MenuPicker {
                    name: "Regrouper par"
                    choices: ["Statut"]
                    current: 0
                }
            }
        }
    }

    Column {
        x: 490
        width: 390
        spacing: Metrics.gapSection

        TitleField {
            width: parent.width
            name: "Titre"
            text: "Prévenir avant l'expiration de la session sur les deux plateformes"
        }

        TitleField {
            width: parent.width
            name: "Titre vide"
            placeholderText: "Titre du ticket"
        }

        InputArea {
            width: parent.width
            name: "Description"
            role: TypeScale.Body14
            text: "Le jeton expire après 24 h.\n\n- [ ] Renouveler le jeton"
        }

        InputArea {
            width: parent.width
            name: "Description verrouillée"
            text: "Ce texte se lit et se copie."
            readOnly: true
        }

        NoticeBanner {
            width: parent.width
            symbol: "key.slash"
            title: "Session enregistrée inaccessible"
            reason: "Le trousseau du système est verrouillé. Déverrouille-le, puis réessaie."
            action: "Réessayer"
            actionSymbol: "arrow.clockwise"
        }

        InlineError {
            width: parent.width
            text: "E-mail ou token invalide. Vérifie que le token appartient bien à ce compte."
        }

        SwatchPicker {
            name: "Couleur, inactive"
            choices: ["Indigo", "Bleu"]
            colors: ["#5E6AD2", "#2B7FFF"]
            current: 1
            enabled: false
        }
    }
}
