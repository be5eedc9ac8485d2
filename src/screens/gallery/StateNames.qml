pragma ComponentBehavior: Bound
import QtQuick
import Velmora.Kit
import Velmora.Theme

/// The header of a table of states.
Row {
    id: root

    property real cell: 150

    leftPadding: 130
    height: 24

    Repeater {
        model: ["repos", "survol", "pressé", "clavier", "inactif"]

        AppText {
            required property string modelData

            width: root.cell
            text: modelData
            role: TypeScale.Caption
            weight: Font.DemiBold
            color: Theme.text3
        }
    }
}
