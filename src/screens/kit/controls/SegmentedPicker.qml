pragma ComponentBehavior: Bound

import QtQuick
import Velmora.Kit
import Velmora.Theme

/// A choice among a few words, side by side. Each segment is a radio button, and the picker is one stop of the Tab key:
/// the arrow keys choose the previous and the next segment. `name` is the name of the group.
Rectangle {
    id: root

    required property string name
    required property list<string> choices
    required property int current
    /// For a line of text beside it.
    property bool isSmall: false

    signal chosen(index: int)

    implicitWidth: segments.implicitWidth + 4
    implicitHeight: isSmall ? 24 : 28
    radius: height / 2
    color: Theme.ink(0.06)
    Accessible.role: Accessible.Grouping
    Accessible.name: name

    ChoiceRow {
        id: segments

        x: 2
        y: 2
        count: root.choices.length
        current: root.current
        onChosen: index => root.chosen(index)

        Repeater {
            // Not the words: when one changes, the segments stay, and with them the focus.
            model: root.choices.length

            Segment {
                required property int index

                height: root.height - 4
                isSmall: root.isSmall
                text: root.choices[index]
                on: index === root.current
                isTabStop: index === Math.max(0, root.current)
                onChosen: root.chosen(index)
            }
        }
    }
}
