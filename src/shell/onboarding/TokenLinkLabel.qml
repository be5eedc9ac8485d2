import QtQuick
import Velmora.Kit
import Velmora.Theme

// The label of the link to the page for creating tokens.
Item {
    id: root

    property bool lit: false

    implicitWidth: words.x + words.implicitWidth
    implicitHeight: 16

    Symbol {
        anchors.verticalCenter: parent.verticalCenter
        name: "arrow.up.right.square"
        size: 11
        color: Theme.accentText
    }

    AppText {
        id: words
        x: 19
        anchors.verticalCenter: parent.verticalCenter
        role: TypeScale.Small
        weight: Font.Medium
        color: Theme.accentText
        text: "Créer un token API"
        Accessible.ignored: true
    }

    Rectangle {
        x: words.x
        y: root.height - 2
        width: words.width
        height: 1
        visible: root.lit
        color: words.color
    }
}
