import QtQuick
import Velmora.Kit
import Velmora.Theme

// The box of a row's check box, which fades out.
CheckMark {
    id: root

    required property bool isShown

    signal gone()

    opacity: root.isShown ? 1 : 0
    onOpacityChanged: if (opacity === 0) gone()

    Behavior on opacity {
        NumberAnimation {
            duration: Motion.fadeDuration
        }
    }
}
