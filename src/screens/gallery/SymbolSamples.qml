pragma ComponentBehavior: Bound
import QtQuick
import Velmora.Gallery
import Velmora.Kit
import Velmora.Theme

/// Every symbol at two sizes, and the line symbols at every weight.
Column {
    id: root

    spacing: 24

    Grid {
        columns: 6
        columnSpacing: 20
        rowSpacing: 22

        Repeater {
            model: Samples.symbols

            Row {
                id: cell

                required property string modelData

                width: 190
                spacing: 10

                Symbol {
                    name: cell.modelData
                    size: 20
                }

                Symbol {
                    anchors.verticalCenter: parent.verticalCenter
                    name: cell.modelData
                    size: 12
                }

                AppText {
                    anchors.verticalCenter: parent.verticalCenter
                    width: 135
                    text: cell.modelData
                    role: TypeScale.Caption
                    color: Theme.text2
                }
            }
        }
    }

    Repeater {
        model: ["regular", "medium", "semibold", "bold", "heavy"]

        Row {
            id: weights

            required property string modelData

            spacing: 16

            Repeater {
                model: ["chevron.right", "chevron.down", "chevron.left", "xmark", "plus", "arrow.up", "checkmark",
                    "arrow.turn.down.right", "person.slash", "square.dashed"]

                Symbol {
                    required property string modelData

                    name: modelData
                    weight: weights.modelData
                    size: 13
                }
            }
        }
    }
}
