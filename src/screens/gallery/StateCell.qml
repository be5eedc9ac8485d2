import QtQuick
import Velmora.Gallery

/// A control in the state with that number.
Item {
    id: root

    required property int index
    required property Component sample

    Loader {
        anchors.verticalCenter: parent.verticalCenter
        sourceComponent: root.sample
        onLoaded: States.show(item, root.index)
    }
}
