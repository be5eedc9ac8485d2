import QtQuick
import Velmora.Kit
import Velmora.Theme

// A key and what it does.
Row {
    id: root

    required property string keys
    required property string meaning

    spacing: Metrics.gapSmall

    KeyCap {
        anchors.verticalCenter: parent.verticalCenter
        text: root.keys
    }

    AppText {
        anchors.verticalCenter: parent.verticalCenter
        role: TypeScale.Caption
        color: Theme.text2
        text: root.meaning
    }
}
