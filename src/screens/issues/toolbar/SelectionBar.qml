pragma ComponentBehavior: Bound

import QtQuick
import Velmora.Issues
import Velmora.Kit
import Velmora.State
import Velmora.Theme

// The bar with the number of checked issues and the commands that apply to all of them. Its content is created when it is
// first shown.
Item {
    id: root

    required property AppStore store

    // How far the bar has slid in, from 0 (hidden) to 1 (shown).
    property real presence: actions.isShown ? 1 : 0
    property bool wasShown: false
    property real lineWidth: 0
    // The space before the number.
    readonly property int countInset: 20

    implicitWidth: lineWidth
    implicitHeight: Metrics.selectionBarHeight
    visible: presence > 0
    enabled: actions.isShown
    onVisibleChanged: if (visible) wasShown = true

    Accessible.role: Accessible.ToolBar
    Accessible.name: actions.countText

    BulkActions {
        id: actions
        store: root.store
    }

    When {
        shown: root.wasShown

        Row {
            y: (1 - root.presence) * (root.height + Metrics.selectionBarBottom)
            opacity: Math.min(1, root.presence)
            spacing: Metrics.gap
            onWidthChanged: root.lineWidth = width
            Component.onCompleted: root.lineWidth = width

            GlassPanel {
                width: count.x + count.width + Metrics.gap + clear.width + Metrics.gap
                height: Metrics.selectionBarHeight
                radius: height / 2
                shadow: "bar"
                color: Theme.glassStrong

                Row {
                    id: count
                    x: root.countInset
                    width: Math.ceil(implicitWidth)
                    anchors.verticalCenter: parent.verticalCenter
                    spacing: blank.advanceWidth

                    RollingNumber {
                        number: actions.count
                        rolls: root.presence > 0
                    }

                    AppText {
                        id: word
                        weight: Font.Medium
                        tabular: true
                        text: actions.countWord
                        Accessible.ignored: true
                    }

                    TextMetrics {
                        id: blank
                        font: word.font
                        text: " "
                    }
                }

                IconButton {
                    id: clear
                    anchors.right: parent.right
                    anchors.rightMargin: Metrics.gap
                    anchors.verticalCenter: parent.verticalCenter
                    name: Hints.deselect
                    symbol: "xmark"
                    symbolSize: 9.5
                    symbolWeight: "semibold"
                    corner: 11
                    onClicked: actions.clear()
                }
            }

            GlassPanel {
                width: cells.width + 2 * cells.x
                height: Metrics.selectionBarHeight
                radius: height / 2
                shadow: "bar"
                color: Theme.glassStrong

                Row {
                    id: cells
                    x: Metrics.gapTiny
                    y: Metrics.gapTiny

                    SelectionAction {
                        text: "Statut"
                        symbol: "circle.dashed"
                        onClicked: root.store.run(Commands.Command.PickStatus)
                    }

                    SelectionAction {
                        text: "Priorité"
                        symbol: "chart.bar.fill"
                        onClicked: root.store.run(Commands.Command.PickPriority)
                    }

                    SelectionAction {
                        text: "Assigner"
                        symbol: "person.crop.circle"
                        onClicked: root.store.run(Commands.Command.PickAssignee)
                    }

                    SelectionAction {
                        text: "Étiquettes"
                        symbol: "tag"
                        onClicked: root.store.run(Commands.Command.PickLabels)
                    }

                    SelectionAction {
                        text: "Copier"
                        symbol: "doc.on.doc"
                        onClicked: root.store.run(Commands.Command.CopyKeys)
                    }
                }
            }
        }
    }

    Behavior on presence {
        NumberAnimation {
            duration: Motion.selectionBarDuration
            easing: Springs.soft
        }
    }
}
