pragma ComponentBehavior: Bound

import QtQuick
import Velmora.Issues
import Velmora.Kit
import Velmora.Theme

// The active filters, one chip for each kind, above the filtered list.
Item {
    id: root

    required property Filters filters

    // The chips stay visible while the bar closes.
    enabled: !root.filters.isEmpty
    implicitHeight: flow.implicitHeight + Metrics.gapMedium

    Accessible.role: Accessible.Grouping
    Accessible.name: "Filtres actifs"

    Flow {
        id: flow
        x: Metrics.contentInset
        width: parent.width - x - Metrics.gap
        spacing: Metrics.gap

        Repeater {
            model: root.filters.chips

            FilterChipView {
                required property filterChip modelData

                maximumWidth: flow.width
                field: modelData.field
                value: modelData.value
                onRemoved: root.filters.remove(modelData.id)
            }
        }

        FocusableItem {
            id: clear
            height: Metrics.filterChipHeight
            leftPadding: Metrics.gapTiny
            rightPadding: Metrics.gapTiny
            // The fill extends further than the text's distance from the last chip.
            leftInset: -Metrics.gapTiny
            rightInset: -Metrics.gapTiny
            corner: height / 2
            text: "Tout effacer"
            onClicked: root.filters.clear()

            contentItem: AppText {
                role: TypeScale.Small
                weight: Font.Medium
                color: Theme.accentText
                verticalAlignment: Text.AlignVCenter
                text: clear.text
                Accessible.ignored: true
            }

            background: ButtonSurface {
                corner: clear.corner
                hovered: clear.lit
                pressed: clear.down
            }
        }
    }
}
