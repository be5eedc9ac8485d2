import QtQuick
import Velmora.Kit
import Velmora.Theme

// What someone signed out sees: one card.
FocusScope {
    id: root

    signal demoChosen()

    Rectangle {
        anchors.fill: parent
        color: Theme.pane
    }

    GlassPanel {
        width: 460
        height: content.height + 2 * 36
        anchors.centerIn: parent
        radius: Metrics.radiusOnboarding
        shadow: "onboarding"
        color: Theme.elevated

        Column {
            id: content
            x: 36
            y: 36
            width: parent.width - 72

            AppGlyph {
                anchors.horizontalCenter: parent.horizontalCenter
                size: 76
            }

            Item { width: 1; height: 20 }

            AppText {
                width: parent.width
                horizontalAlignment: Text.AlignHCenter
                role: TypeScale.Display
                text: "Jira au bout des doigts"
                Accessible.role: Accessible.Heading
                Accessible.name: text
            }

            Item { width: 1; height: Metrics.gap }

            AppText {
                width: parent.width
                horizontalAlignment: Text.AlignHCenter
                role: TypeScale.Body14
                color: Theme.text2
                wrapMode: Text.Wrap
                text: "Connecte ton espace Atlassian pour retrouver tes tickets dans une app native, rapide et pensée pour le clavier."
                Accessible.role: Accessible.StaticText
                Accessible.name: text
            }

            Item { width: 1; height: 24 }

            PushButton {
                width: parent.width
                focus: true
                large: true
                look: PushButton.Glass
                symbol: "sparkles"
                text: "Explorer en mode démo"
                onClicked: root.demoChosen()
            }
        }
    }
}
