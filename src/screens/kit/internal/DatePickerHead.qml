import QtQuick
import Velmora.Kit

/// The name of a month, and the two buttons that change the month.
Item {
    id: root

    required property string title

    signal turned(months: int)

    implicitHeight: 28

    AppText {
        x: 4
        anchors.verticalCenter: parent.verticalCenter
        text: root.title
        weight: Font.DemiBold
    }

    Row {
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter

        IconButton {
            name: "Mois précédent"
            symbol: "chevron.left"
            symbolSize: 10
            symbolWeight: "bold"
            onClicked: root.turned(-1)
        }

        IconButton {
            name: "Mois suivant"
            symbol: "chevron.right"
            symbolSize: 10
            symbolWeight: "bold"
            onClicked: root.turned(1)
        }
    }
}
