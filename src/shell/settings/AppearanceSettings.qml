pragma ComponentBehavior: Bound

import QtQuick
import Velmora.Issues
import Velmora.Kit
import Velmora.Model
import Velmora.Shell
import Velmora.State
import Velmora.Theme

// The page "Apparence": how the program and its lists look. Every control takes effect at once.
SettingsPage {
    id: root

    required property AppStore store

    readonly property list<string> accentNames: ["Indigo", "Bleu", "Violet", "Rose", "Orange", "Vert", "Graphite"]

    name: "Apparence"

    DisplayOptions {
        id: options
        store: root.store
    }

    FormCard {
        title: "Thème"

        Item {
            width: parent?.width ?? 0
            height: modes.height + 14 + 12

            TilePicker {
                id: modes
                x: 16
                y: 14
                name: "Thème"
                choices: ["Système", "Clair", "Sombre"]
                current: root.store.appearance
                pictures: [
                    ThemePicture {
                        mode: Model.AppearanceMode.System
                        accent: Theme.accent
                    },
                    ThemePicture {
                        mode: Model.AppearanceMode.Light
                        accent: Theme.accent
                    },
                    ThemePicture {
                        mode: Model.AppearanceMode.Dark
                        accent: Theme.accent
                    }
                ]
                onChosen: index => root.store.appearance = index
            }
        }
    }

    FormCard {
        title: "Couleur d'accent"

        Item {
            width: parent?.width ?? 0
            height: 48

            SwatchPicker {
                id: accents
                x: Metrics.gapLarge
                anchors.verticalCenter: parent.verticalCenter
                name: "Couleur d'accent"
                choices: root.accentNames
                colors: [
                    IdentityPalette.accent(Model.AccentChoice.Indigo),
                    IdentityPalette.accent(Model.AccentChoice.Blue),
                    IdentityPalette.accent(Model.AccentChoice.Purple),
                    IdentityPalette.accent(Model.AccentChoice.Pink),
                    IdentityPalette.accent(Model.AccentChoice.Orange),
                    IdentityPalette.accent(Model.AccentChoice.Green),
                    IdentityPalette.accent(Model.AccentChoice.Graphite)
                ]
                current: root.store.accentChoice
                onChosen: index => root.store.accentChoice = index
            }

            AppText {
                anchors.left: accents.right
                anchors.leftMargin: 16
                anchors.verticalCenter: parent.verticalCenter
                color: Theme.text2
                text: root.accentNames[root.store.accentChoice] ?? ""
                // The chosen circle says the same.
                Accessible.ignored: true
            }
        }
    }

    FormCard {
        title: "Liste"

        FormRow {
            text: "Densité"

            SegmentedPicker {
                name: "Densité"
                choices: ["Confortable", "Compacte"]
                current: root.store.density
                onChosen: index => root.store.density = index
            }
        }
    }

    FormCard {
        title: "Vue des tickets"

        FormRow {
            text: "Disposition"

            MenuPicker {
                name: "Disposition"
                choices: ["Liste", "Tableau"]
                current: root.store.layout
                onChosen: index => root.store.layout = index
            }
        }

        FormRow {
            text: "Regrouper par"

            GroupingPicker {
                store: root.store
            }
        }

        FormRow {
            text: "Trier par"

            OrderingPicker {
                store: root.store
            }
        }

        FormRow {
            text: "Afficher les tickets terminés"

            ToggleSwitch {
                name: "Afficher les tickets terminés"
                checked: root.store.showCompleted
                onClicked: root.store.showCompleted = !root.store.showCompleted
            }
        }
    }

    FormCard {
        title: "Propriétés dans la liste"

        PropertyRow {
            text: "Clé"
            column: "key"
            isOn: root.store.display.key
        }

        PropertyRow {
            text: "Priorité"
            column: "priority"
            isOn: root.store.display.priority
        }

        PropertyRow {
            text: "Type"
            column: "type"
            isOn: root.store.display.type
        }

        PropertyRow {
            text: "Étiquettes"
            column: "labels"
            isOn: root.store.display.labels
        }

        PropertyRow {
            text: "Assigné"
            column: "assignee"
            isOn: root.store.display.assignee
        }

        PropertyRow {
            text: "Échéance"
            column: "dueDate"
            isOn: root.store.display.dueDate
        }

        PropertyRow {
            text: "Date de mise à jour"
            column: "updated"
            isOn: root.store.display.updated
        }
    }

    component PropertyRow: FormRow {
        id: row

        required property string column
        required property bool isOn

        ToggleSwitch {
            name: row.text
            checked: row.isOn
            onClicked: options.toggle(row.column)
        }
    }
}
