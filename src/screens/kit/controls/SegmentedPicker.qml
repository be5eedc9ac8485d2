pragma ComponentBehavior: Bound

import QtQuick
import Velmora.Kit
import Velmora.Theme

/// A choice among a few words, side by side. Each segment is a radio button. `name` is the name of the group. The left
/// and right keys choose the previous and the next segment.
Rectangle {
    id: root

    required property string name
    required property list<string> choices
    required property int current

    signal chosen(index: int)

    function step(by: int) {
        if (choices[current + by] === undefined)
            return
        chosen(current + by)
        segments.children[current].forceActiveFocus(Qt.TabFocusReason)
    }

    implicitWidth: segments.implicitWidth + 4
    implicitHeight: 28
    radius: height / 2
    color: Theme.ink(0.06)
    Accessible.role: Accessible.Grouping
    Accessible.name: name
    Keys.onLeftPressed: step(-1)
    Keys.onRightPressed: step(1)

    Row {
        id: segments

        x: 2
        y: 2

        Repeater {
            model: root.choices

            Segment {
                required property int index
                required property string modelData

                height: root.height - 4
                text: modelData
                on: index === root.current
                onChosen: root.chosen(index)
            }
        }
    }
}
