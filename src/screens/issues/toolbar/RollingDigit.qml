import QtQuick
import Velmora.Kit
import Velmora.Theme

// One digit of a number. A new value moves in from below, while the previous one moves out at the top.
Item {
    id: root

    required property string digit
    required property bool rolls

    property string shown
    property string previous
    // How far the new value has moved in, from 0 to 1.
    property real progress: 1

    function roll() {
        previous = shown;
        shown = digit;
        if (previous !== "" && rolls && !Motion.reduced)
            rolling.restart();
    }

    implicitWidth: now.implicitWidth
    implicitHeight: now.implicitHeight
    clip: progress < 1
    onDigitChanged: roll()
    Component.onCompleted: shown = digit

    AppText {
        visible: root.progress < 1
        y: -root.progress * root.height
        weight: Font.Medium
        tabular: true
        text: root.previous
        Accessible.ignored: true
    }

    AppText {
        id: now
        y: (1 - root.progress) * root.height
        weight: Font.Medium
        tabular: true
        text: root.digit
        Accessible.ignored: true
    }

    NumberAnimation {
        id: rolling
        target: root
        property: "progress"
        from: 0
        to: 1
        duration: Motion.stateDuration
        easing: Springs.even
    }
}
