import QtQuick
import Velmora.Issues
import Velmora.Kit
import Velmora.Model
import Velmora.State
import Velmora.Theme

// The switch between list and board.
GlassCapsule {
    id: root

    required property int layout

    signal chosen(layout: int)

    width: cells.width + 2 * Metrics.capsuleInset
    Accessible.role: Accessible.Grouping
    Accessible.name: "Disposition"

    Row {
        id: cells
        anchors.centerIn: parent

        LayoutChoice {
            name: "Liste"
            symbol: "list.bullet"
            on: root.layout === Model.LayoutMode.List
            hint: Hints.layout
            onClicked: root.chosen(Model.LayoutMode.List)
        }

        LayoutChoice {
            name: "Tableau"
            symbol: "rectangle.split.3x1"
            symbolSize: 12.5
            on: root.layout === Model.LayoutMode.Board
            hint: Hints.layout
            onClicked: root.chosen(Model.LayoutMode.Board)
        }
    }
}
