import QtQuick
import Velmora.Kit
import Velmora.Theme

// A remark below an editor: a symbol and a text, which wraps at the width `limit`. Its `details` are a hint, and what a
// screen reader says in addition. A remark with details can have the focus, so that the keyboard reaches the hint.
Item {
    id: root

    required property real limit
    required property string symbol
    required property string text
    property string details
    property color color: Theme.text2
    property color symbolColor: color

    readonly property int gap: 5

    implicitWidth: Math.ceil(Math.min(limit, words.x + words.implicitWidth))
    implicitHeight: words.height
    activeFocusOnTab: details.length > 0
    Accessible.role: Accessible.StaticText
    Accessible.name: text
    Accessible.description: details
    Accessible.focusable: activeFocusOnTab

    HoverHandler {
        id: pointer
    }

    FocusRing {
        shown: arrival.isShown
        corner: Metrics.radiusCheckBox
    }

    TabArrival {
        id: arrival
        item: root
    }

    Symbol {
        id: sign

        y: (TypeScale.lineHeight(TypeScale.Nano) - height) / 2
        name: root.symbol
        size: 10
        color: root.symbolColor
    }

    AppText {
        id: words

        x: sign.width + root.gap
        width: Math.max(0, Math.min(implicitWidth, root.limit - x))
        role: TypeScale.Nano
        color: root.color
        wrapMode: Text.Wrap
        text: root.text
        Accessible.ignored: true
    }

    HintTip {
        shown: pointer.hovered || arrival.isShown
        text: root.details
    }
}
