import QtQuick
import Velmora.Theme
import Velmora.Kit

/// The square and the text of a check box. The square is aligned with the first line of the text.
Item {
    id: root

    required property string text
    required property bool checked
    required property bool hovered
    required property bool pressed

    implicitWidth: words.x + measure.implicitWidth
    implicitHeight: words.implicitHeight

    CheckMark {
        y: 2
        checked: root.checked
        hovered: root.hovered
        pressed: root.pressed
        opacity: root.enabled ? 1 : 0.45
    }

    AppText {
        id: words

        x: 22
        width: root.width - x
        text: root.text
        wrapMode: Text.Wrap
        color: root.enabled ? Theme.text1 : Theme.text4
        Accessible.ignored: true
    }

    AppText {
        id: measure

        visible: false
        text: root.text
        Accessible.ignored: true
    }
}
