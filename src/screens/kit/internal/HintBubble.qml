import QtQuick
import QtQuick.Templates as T
import Velmora.Theme
import Velmora.Kit

/// The bubble of a hint, below the middle of its owner.
T.ToolTip {
    id: tip

    required property Item owner

    parent: owner
    x: Math.round((owner.width - implicitWidth) / 2)
    y: owner.height + 6
    margins: 6
    leftPadding: 10
    rightPadding: 10
    implicitWidth: Math.ceil(implicitContentWidth) + leftPadding + rightPadding
    implicitHeight: Metrics.tooltipHeight
    delay: HintWarmth.warm ? 0 : Motion.tooltipDelay
    visible: true
    onAboutToHide: HintWarmth.restart()

    contentItem: AppText {
        text: tip.text
        role: TypeScale.Badge
        weight: Font.Normal
        Accessible.role: Accessible.ToolTip
    }

    background: GlassPanel {
        radius: Metrics.radiusRow
        color: Theme.elevatedGlass
        shadow: "bar"
    }
}
