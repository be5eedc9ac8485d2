pragma ComponentBehavior: Bound

import QtQuick
import Velmora.Theme

/// One choice out of a few words, side by side. Each segment is a button of its own; `name` is what the group is called.
Rectangle {
    id: picker

    required property string name
    required property list<string> choices
    required property int current

    signal chosen(index: int)

    implicitWidth: segments.implicitWidth + 4
    implicitHeight: 28
    radius: height / 2
    color: Theme.ink(0.06)
    Accessible.role: Accessible.Grouping
    Accessible.name: name

    Row {
        id: segments

        x: 2
        y: 2

        Repeater {
            model: picker.choices

            FocusableItem {
                id: segment

                required property int index
                required property string modelData
                readonly property bool on: index === picker.current

                implicitWidth: Math.ceil(implicitContentWidth) + 24
                height: picker.height - 4
                leftPadding: 12
                rightPadding: 12
                corner: height / 2
                text: modelData
                Accessible.role: Accessible.RadioButton
                Accessible.checkable: true
                Accessible.checked: on
                onClicked: picker.chosen(index)

                background: Rectangle {
                    radius: segment.corner
                    color: segment.on ? (Theme.dark ? "#24FFFFFF" : Theme.card)
                                      : segment.down ? Theme.highlightFill : segment.lit ? Theme.hoverFill : "transparent"
                    border.width: segment.on && !Theme.dark ? 1 / Screen.devicePixelRatio : 0
                    border.pixelAligned: false
                    border.color: Theme.ink(0.08)
                }

                contentItem: AppText {
                    text: segment.text
                    role: TypeScale.Small
                    weight: Font.Medium
                    color: !segment.enabled ? Theme.text4 : segment.on ? Theme.text1 : Theme.text2
                    horizontalAlignment: Text.AlignHCenter
                    verticalAlignment: Text.AlignVCenter
                    Accessible.ignored: true
                }
            }
        }
    }
}
