pragma ComponentBehavior: Bound

import QtQuick
import Velmora.Issues
import Velmora.Kit
import Velmora.Model
import Velmora.State
import Velmora.Theme

// The controls for the grouping and sorting of the list and for the columns of its rows.
Item {
    id: root

    required property AppStore store

    readonly property int sideMargin: 16
    // The heights of a line with a picker and of the title of the columns.
    readonly property int pickerLine: 34
    readonly property int titleLine: 24

    // Moves the focus to the first control, for users of the keyboard.
    function focusFirst() {
        const first = grouping.enabled ? grouping : ordering;
        first.forceActiveFocus(Qt.TabFocusReason);
    }

    implicitHeight: lines.implicitHeight + 2 * Metrics.panelPadding

    DisplayOptions {
        id: options
        store: root.store
    }

    Column {
        id: lines
        x: root.sideMargin
        y: Metrics.panelPadding
        width: root.width - 2 * x

        DisplayLine {
            width: parent.width
            height: root.pickerLine
            text: "Regrouper par"

            GroupingPicker {
                id: grouping
                store: root.store
                enabled: root.store.layout === Model.LayoutMode.List
            }
        }

        DisplayLine {
            width: parent.width
            height: root.pickerLine
            text: "Trier par"

            OrderingPicker {
                id: ordering
                store: root.store
            }
        }

        DisplayLine {
            width: parent.width
            text: "Afficher les tickets terminés"

            ToggleSwitch {
                name: "Afficher les tickets terminés"
                checked: root.store.showCompleted
                onClicked: root.store.showCompleted = !root.store.showCompleted
            }
        }

        Item {
            width: parent.width
            height: 2 * Metrics.gap + 1

            Rectangle {
                y: Metrics.gap
                width: parent.width
                height: 1
                color: Theme.divider
            }
        }

        AppText {
            height: root.titleLine
            topPadding: Metrics.gapTiny
            role: TypeScale.Caption
            weight: Font.DemiBold
            color: Theme.text2
            text: "Propriétés affichées"
            Accessible.role: Accessible.Heading
        }

        PropertyLine {
            text: "Clé"
            column: "key"
            isOn: root.store.display.key
        }

        PropertyLine {
            text: "Priorité"
            column: "priority"
            isOn: root.store.display.priority
        }

        PropertyLine {
            text: "Type"
            column: "type"
            isOn: root.store.display.type
        }

        PropertyLine {
            text: "Étiquettes"
            column: "labels"
            isOn: root.store.display.labels
        }

        PropertyLine {
            text: "Assigné"
            column: "assignee"
            isOn: root.store.display.assignee
        }

        PropertyLine {
            text: "Échéance"
            column: "dueDate"
            isOn: root.store.display.dueDate
        }

        PropertyLine {
            text: "Mis à jour"
            column: "updated"
            isOn: root.store.display.updated
        }
    }

    component PropertyLine: DisplayLine {
        id: line

        required property string column
        required property bool isOn

        width: lines.width

        ToggleSwitch {
            name: line.text
            checked: line.isOn
            onClicked: options.toggle(line.column)
        }
    }
}
