import QtQuick
import Velmora.Theme

/// Plain text in one of the roles of the type scale. A single line is as high as its role's line. Set `wrapMode` for
/// several lines. Text that exceeds the width is elided with "…". `weight` overrides the weight of the role. `tabular`
/// is for keys, counts and dates.
Text {
    id: root

    property int role: TypeScale.Body
    property int weight: -1
    property bool tabular: false
    readonly property bool wraps: wrapMode !== Text.NoWrap
    readonly property real leading: TypeScale.halfLeading(role)

    textFormat: Text.PlainText
    color: Theme.text1
    font: TypeScale.font(role, weight, tabular)
    elide: Text.ElideRight
    // A text in a right-to-left script would otherwise be aligned to the right edge.
    horizontalAlignment: Text.AlignLeft
    lineHeightMode: wraps ? Text.FixedHeight : Text.ProportionalHeight
    lineHeight: wraps ? TypeScale.lineHeight(role) : 1
    topPadding: leading
    bottomPadding: wraps ? -leading : leading
    Accessible.role: Accessible.StaticText
    Accessible.name: text
}
