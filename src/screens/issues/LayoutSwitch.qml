import QtQuick
import Velmora.Kit
import Velmora.Model
import Velmora.State

// List or board.
GlassCapsule {
    id: root

    required property int layout

    signal chosen(layout: int)

    width: cells.width + 4

    Row {
        id: cells
        anchors.centerIn: parent

        ToolbarCell {
            name: "Liste"
            symbol: "list.bullet"
            on: root.layout === Model.LayoutMode.List
            Accessible.checkable: true
            Accessible.checked: on
            hint: Hints.layout
            onClicked: root.chosen(Model.LayoutMode.List)
        }

        ToolbarCell {
            name: "Tableau"
            symbol: "rectangle.split.3x1"
            symbolSize: 12.5
            on: root.layout === Model.LayoutMode.Board
            Accessible.checkable: true
            Accessible.checked: on
            hint: Hints.layout
            onClicked: root.chosen(Model.LayoutMode.Board)
        }
    }
}
