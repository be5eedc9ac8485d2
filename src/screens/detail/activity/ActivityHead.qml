pragma ComponentBehavior: Bound

import QtQuick
import Velmora.Detail
import Velmora.Kit
import Velmora.Theme

// The title of the section with the filter of the comments or, if there is nothing to filter, their number. The filter
// stands below the title where both do not fit side by side.
Item {
    id: root

    required property activityFacts facts
    readonly property int lineHeight: 28
    readonly property bool isNarrow: filter.visible
                                     && title.implicitWidth + Metrics.gapLarge + filter.implicitWidth > width

    signal chosen(filter: int)

    implicitHeight: isNarrow ? 2 * lineHeight : lineHeight

    AppText {
        id: title
        height: root.lineHeight
        verticalAlignment: Text.AlignVCenter
        weight: Font.DemiBold
        text: "Activité"
        Accessible.role: Accessible.Heading
    }

    SegmentedPicker {
        id: filter
        visible: root.facts.offersFilter
        x: root.isNarrow ? 0 : root.width - width
        y: (root.isNarrow ? root.lineHeight : 0) + (root.lineHeight - height) / 2
        isSmall: true
        name: "Afficher"
        choices: root.facts.filterTitles
        current: root.facts.filter
        onChosen: index => root.chosen(index)
    }

    AppText {
        visible: !root.facts.offersFilter
        x: root.width - width
        height: root.lineHeight
        verticalAlignment: Text.AlignVCenter
        role: TypeScale.Small
        tabular: true
        color: Theme.text2
        text: root.facts.countText
    }
}
