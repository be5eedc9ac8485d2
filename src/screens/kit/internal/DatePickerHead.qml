import QtQuick
import Velmora.Kit

/// The name of a month, and the two buttons that turn it.
Item {
    id: head

    required property string title

    signal turned(months: int)

    implicitHeight: 28

    AppText {
        x: 4
        anchors.verticalCenter: parent.verticalCenter
        text: head.title
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
            onClicked: head.turned(-1)
        }

        IconButton {
            name: "Mois suivant"
            symbol: "chevron.right"
            symbolSize: 10
            symbolWeight: "bold"
            onClicked: head.turned(1)
        }
    }
}
