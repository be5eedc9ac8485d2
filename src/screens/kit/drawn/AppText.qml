import QtQuick
import Velmora.Theme

/// Plain text in one of the roles of the type scale. One line is as high as its role's line; set `wrapMode` for more.
/// It ends in "…" where its width ends. `weight` overrides the role's; `tabular` is for keys, counts and dates.
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
    lineHeightMode: wraps ? Text.FixedHeight : Text.ProportionalHeight
    lineHeight: wraps ? TypeScale.lineHeight(role) : 1
    topPadding: leading
    bottomPadding: wraps ? -leading : leading
    Accessible.role: Accessible.StaticText
    Accessible.name: text
}
