import QtQuick
import Velmora.Gallery

/// A control in the state of that number.
Item {
    id: cell

    required property int index
    required property Component sample

    Loader {
        anchors.verticalCenter: parent.verticalCenter
        sourceComponent: cell.sample
        onLoaded: States.show(item, cell.index)
    }
}
