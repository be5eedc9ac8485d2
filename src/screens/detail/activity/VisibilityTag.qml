import QtQuick
import Velmora.Detail
import Velmora.Kit
import Velmora.Theme

// Says who can read a comment, on at most `limit` points. It is hidden if everybody can who can read the issue.
Rectangle {
    id: root

    required property shownComment comment
    required property real limit
    readonly property bool isEmpty: comment.tagText === ""
    readonly property int padding: 7
    readonly property real symbolSize: comment.isNote ? 8.5 : 9

    visible: !isEmpty
    implicitWidth: isEmpty ? 0 : Math.ceil(label.width) + label.x + padding
    implicitHeight: 18
    radius: height / 2
    color: comment.isNote ? Theme.noteAt(0.14) : Theme.accentAt(0.14)
    Accessible.ignored: true

    Symbol {
        id: symbol
        x: root.padding
        anchors.verticalCenter: parent.verticalCenter
        name: root.comment.isNote ? "lock.fill" : "person.wave.2.fill"
        size: root.symbolSize
        color: root.comment.isNote ? Theme.internalNote : Theme.accentText
    }

    AppText {
        id: label
        x: symbol.x + symbol.width + Metrics.gapTiny
        width: Math.max(0, Math.min(implicitWidth, root.limit - x - root.padding))
        anchors.verticalCenter: parent.verticalCenter
        role: TypeScale.Micro
        weight: Font.DemiBold
        color: root.comment.isNote ? Theme.noteText : Theme.accentText
        text: root.comment.tagText
        Accessible.ignored: true
    }

    HoverHandler {
        id: pointer
    }

    HintTip {
        shown: pointer.hovered
        text: root.comment.tagHint
    }
}
