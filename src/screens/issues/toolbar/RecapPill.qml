import QtQuick
import Velmora.Kit
import Velmora.Theme

// One counter of a recap.
Row {
    id: root

    required property string symbol
    required property int value
    required property string label
    /// The shown number, which counts up or down to the value.
    property real shown: value

    // The colour depends on the symbol: finished, moved or new issues.
    readonly property color tint: symbol === "checkmark.circle.fill" ? Theme.done
        : symbol === "arrow.forward.circle.fill" ? Theme.inProgress
        : symbol === "plus.circle.fill" ? Theme.review : Theme.neutral

    spacing: Metrics.gapSmall
    Accessible.role: Accessible.StaticText
    Accessible.name: root.value + " " + root.label

    Symbol {
        anchors.verticalCenter: parent.verticalCenter
        name: root.symbol
        size: 13
        color: root.tint
    }

    AppText {
        anchors.verticalCenter: parent.verticalCenter
        weight: Font.DemiBold
        tabular: true
        text: Math.round(root.shown)
        Accessible.ignored: true
    }

    AppText {
        anchors.verticalCenter: parent.verticalCenter
        role: TypeScale.Small
        color: Theme.text2
        text: root.label
        Accessible.ignored: true
    }

    Behavior on shown {
        NumberAnimation {
            duration: Motion.stateDuration
            easing: Springs.even
        }
    }
}
