import QtQuick
import Velmora.Kit
import Velmora.Theme

/// Says below the fields of a form why it was refused. Screen readers announce it as an alert.
Item {
    id: root

    required property string text

    implicitHeight: words.height
    Accessible.role: Accessible.AlertMessage
    Accessible.name: text

    Symbol {
        x: 2
        y: 1
        name: "exclamationmark.triangle.fill"
        size: 11.5
        color: Theme.orangeText
    }

    AppText {
        id: words
        x: 22
        width: parent.width - x - 2
        role: TypeScale.Small
        color: Theme.orangeText
        wrapMode: Text.Wrap
        text: root.text
        Accessible.ignored: true
    }
}
