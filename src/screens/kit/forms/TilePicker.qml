pragma ComponentBehavior: Bound

import QtQuick
import Velmora.Kit
import Velmora.Theme

/// A choice among pictures with a title below each. Each tile is a radio button, and the picker is one stop of the Tab
/// key: the arrow keys choose the previous and the next tile. `pictures` has one item for each of the `choices`, 92 × 60
/// with rounded corners of 9. `name` is the name of the group.
Item {
    id: root

    required property string name
    required property list<string> choices
    required property list<Item> pictures
    required property int current

    signal chosen(index: int)

    implicitWidth: tiles.implicitWidth
    implicitHeight: tiles.implicitHeight
    Accessible.role: Accessible.Grouping
    Accessible.name: name

    ChoiceRow {
        id: tiles

        spacing: Metrics.gapSection
        count: root.choices.length
        current: root.current
        onChosen: index => root.chosen(index)

        Repeater {
            model: root.choices

            Tile {
                required property int index
                required property string modelData

                text: modelData
                picture: root.pictures[index]
                on: index === root.current
                isTabStop: index === Math.max(0, root.current)
                onChosen: root.chosen(index)
            }
        }
    }
}
