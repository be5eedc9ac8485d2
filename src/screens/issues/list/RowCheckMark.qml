import QtQuick
import Velmora.Kit
import Velmora.Theme

// The box of a row's check box. It appears at once and fades out.
CheckMark {
    id: root

    required property bool isShown

    opacity: root.isShown ? 1 : 0
    visible: opacity > 0

    Behavior on opacity {
        enabled: root.visible

        NumberAnimation {
            duration: Motion.fadeDuration
        }
    }
}
