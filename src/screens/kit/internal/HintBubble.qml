import QtQuick
import QtQuick.Templates as T
import Velmora.Theme
import Velmora.Kit

/// The bubble of a hint, centred below its parent item, or at the lower end of the page on which its parent item ends
/// out of sight: what is beside the page stays uncovered. A text that is wider than `maxWidth` is broken into lines.
T.ToolTip {
    id: root

    property real maxWidth: 360
    /// The lower end of what is in sight of the parent item.
    property real lowerEnd: 0
    readonly property bool isLong: metrics.width > maxWidth
    readonly property TextMetrics metrics: TextMetrics {
        font: TypeScale.font(TypeScale.Badge, Font.Normal)
        text: root.text
    }

    function showAt(owner: Item, words: string, wait: int) {
        parent = owner
        text = words
        delay = wait
        open()
    }

    x: parent ? Math.round((parent.width - implicitWidth) / 2) : 0
    y: !parent ? 0 : lowerEnd < parent.height - 1 ? lowerEnd - implicitHeight - 6 : parent.height + 6
    margins: 6
    leftPadding: 9
    rightPadding: 9
    implicitWidth: (isLong ? maxWidth : Math.ceil(implicitContentWidth)) + leftPadding + rightPadding
    implicitHeight: isLong ? implicitContentHeight + 12 : Metrics.tooltipHeight
    onAboutToShow: lowerEnd = PopoverPlacement.lowerEnd(parent)
    onAboutToHide: HintWarmth.restart()

    contentItem: AppText {
        text: root.text
        role: TypeScale.Badge
        weight: Font.Normal
        wrapMode: root.isLong ? Text.Wrap : Text.NoWrap
        verticalAlignment: Text.AlignVCenter
        Accessible.role: Accessible.ToolTip
    }

    background: GlassPanel {
        radius: Metrics.radiusRow
        color: Theme.elevatedGlass
        shadow: "bar"
    }
}
