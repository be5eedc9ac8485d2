pragma ComponentBehavior: Bound

import QtQuick
import Velmora.Issues

// A number in digits of equal width. Each digit that changes rolls to its new value. Digits are counted from the right,
// so that the units roll to the units when the number gets a digit more.
Row {
    id: root

    required property int number
    // A change rolls. Otherwise it is shown at once.
    required property bool rolls
    readonly property string digits: number

    layoutDirection: Qt.RightToLeft

    Repeater {
        model: root.digits.length

        RollingDigit {
            required property int index

            rolls: root.rolls
            digit: root.digits.charAt(root.digits.length - 1 - index)
        }
    }
}
