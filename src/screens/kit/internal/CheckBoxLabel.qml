import QtQuick
import Velmora.Theme
import Velmora.Kit

/// The square of a check box, level with the first line of its words.
Item {
    id: label

    required property string text
    required property bool checked
    required property bool hovered
    required property bool pressed

    implicitWidth: words.x + measure.implicitWidth
    implicitHeight: words.implicitHeight

    CheckMark {
        y: 2
        checked: label.checked
        hovered: label.hovered
        pressed: label.pressed
        opacity: label.enabled ? 1 : 0.45
    }

    AppText {
        id: words

        x: 22
        width: label.width - x
        text: label.text
        wrapMode: Text.Wrap
        color: label.enabled ? Theme.text1 : Theme.text4
        Accessible.ignored: true
    }

    AppText {
        id: measure

        visible: false
        text: label.text
        Accessible.ignored: true
    }
}
