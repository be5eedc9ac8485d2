pragma ComponentBehavior: Bound

import QtQuick
import Velmora.Kit
import Velmora.Theme

/// A choice among colours, each in a circle with its name as a hint. Each circle is a radio button, and the picker is
/// one stop of the Tab key: the arrow keys choose the previous and the next colour. `choices` are the names of the
/// `colors`, and `name` is the name of the group.
Item {
    id: root

    required property string name
    required property list<string> choices
    required property list<color> colors
    required property int current

    signal chosen(index: int)

    implicitWidth: swatches.implicitWidth
    implicitHeight: swatches.implicitHeight
    Accessible.role: Accessible.Grouping
    Accessible.name: name

    ChoiceRow {
        id: swatches

        spacing: Metrics.gapMedium
        count: root.choices.length
        current: root.current
        onChosen: index => root.chosen(index)

        Repeater {
            model: root.choices

            Swatch {
                required property int index
                required property string modelData

                text: modelData
                fill: root.colors[index]
                on: index === root.current
                isTabStop: index === Math.max(0, root.current)
                onChosen: root.chosen(index)
            }
        }
    }
}
