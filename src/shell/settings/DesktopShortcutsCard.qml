import QtQuick
import Velmora.Kit
import Velmora.Shell
import Velmora.Theme

// The shortcuts of the whole desktop: their keys as far as the desktop tells them, and the button that opens its dialog.
FormCard {
    id: root

    required property DesktopShortcuts shortcuts

    // The button has received the keyboard focus.
    signal focused()

    title: "Raccourcis du bureau"
    footnote: "Ils fonctionnent aussi quand un autre programme a le clavier. Tu choisis leurs touches dans une fenêtre de ton bureau."

    ValueRow {
        visible: value.length > 0
        Accessible.ignored: !visible
        text: "Nouveau ticket"
        value: root.shortcuts.newIssueKeys
    }

    ValueRow {
        visible: value.length > 0
        Accessible.ignored: !visible
        text: "Palette"
        value: root.shortcuts.paletteKeys
    }

    Item {
        width: parent?.width ?? 0
        height: 40

        PushButton {
            x: Metrics.gapLarge
            anchors.verticalCenter: parent.verticalCenter
            height: 26
            text: "Raccourcis du bureau…"
            onClicked: root.shortcuts.choose()
            onActiveFocusChanged: {
                if (activeFocus)
                    root.focused();
            }
        }
    }
}
