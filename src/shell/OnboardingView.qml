import QtQuick
import Velmora.Kit
import Velmora.Shell
import Velmora.State
import Velmora.Theme

// The screen of a user who is not signed in: one card on a slowly moving background of colours.
FocusScope {
    id: root

    required property AppStore store

    Keys.onReturnPressed: form.form.connect()
    Keys.onEnterPressed: form.form.connect()
    Keys.onEscapePressed: form.form.dismissError()

    AnimatedMeshBackground {
        anchors.fill: parent
        still: Motion.reduced
    }

    CardScroller {
        id: scroller
        anchors.fill: parent
        card: panel
        scope: root

        GlassPanel {
            id: panel
            width: Math.min(460, scroller.width - 2 * Metrics.gap)
            height: content.height + 2 * 36
            x: (scroller.width - width) / 2
            y: (scroller.contentHeight - height) / 2
            radius: Metrics.radiusOnboarding
            shadow: "onboarding"
            color: Theme.onboardingCard
            hairline: "#38FFFFFF"
            edgeLight: "#80FFFFFF"

            Column {
                id: content
                x: 36
                y: 36
                width: parent.width - 72

                AppGlyph {
                    anchors.horizontalCenter: parent.horizontalCenter
                    size: 76
                }

                Item { width: 1; height: 18 }

                AppText {
                    width: parent.width
                    horizontalAlignment: Text.AlignHCenter
                    role: TypeScale.Display
                    text: "Jira au bout des doigts"
                    Accessible.role: Accessible.Heading
                }

                Item { width: 1; height: Metrics.gap }

                AppText {
                    width: parent.width
                    horizontalAlignment: Text.AlignHCenter
                    role: TypeScale.Body14
                    color: Theme.text2
                    wrapMode: Text.Wrap
                    text: "Connecte ton espace Atlassian pour retrouver tes tickets dans une app native, rapide et pensée pour le clavier."
                }

                Item { width: 1; height: 22 }

                ConnectFormView {
                    id: form
                    width: parent.width
                    focus: true
                    store: root.store
                }

                Item { width: 1; height: 18 }

                SeparatorWord {
                    width: parent.width
                    text: "ou"
                }

                Item { width: 1; height: 16 }

                PushButton {
                    width: parent.width
                    large: true
                    look: PushButton.Glass
                    symbol: "sparkles"
                    text: "Explorer en mode démo"
                    onClicked: root.store.openDemo()
                }
            }
        }
    }

    Scrolling {
        view: scroller
        ground: Theme.content
        // The background has many colours, so nothing can fade into it.
        fadesAtTop: false
        fadesAtBottom: false
    }
}
