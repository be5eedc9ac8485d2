pragma ComponentBehavior: Bound

import QtQuick
import Velmora.Kit
import Velmora.Options
import Velmora.Theme

// One row of the palette, preceded by the title of its section if it is the first of that section. The slot is
// reassigned to other rows while the user types, so parts that a row does not need are hidden and not destroyed.
Item {
    id: root

    required property int row
    required property real place
    required property bool isShown
    required property string sectionTitle
    required property string title
    required property string subtitle
    required property optionIcon icon
    required property bool isSelected
    required property string shortcut
    property bool isHighlighted: false
    readonly property bool isFirst: sectionTitle !== ""

    signal pointed()
    signal picked()

    y: place
    visible: isShown
    height: Metrics.optionRowHeight + (isFirst ? Metrics.paletteTitleHeight : 0)

    AppText {
        visible: root.isFirst
        x: Metrics.gapMedium
        y: 10
        role: TypeScale.Caption
        weight: Font.DemiBold
        color: Theme.text3
        text: root.sectionTitle
        Accessible.role: Accessible.Heading
    }

    OptionRow {
        y: root.height - height
        width: root.width
        index: root.row
        title: root.title
        subtitle: root.subtitle
        icon: root.icon
        isSelected: root.isSelected
        shortcut: root.shortcut
        isHighlighted: root.isHighlighted
        onPointed: root.pointed()
        onPicked: root.picked()
    }
}
