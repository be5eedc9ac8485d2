pragma ComponentBehavior: Bound

import QtQuick
import Velmora.Kit
import Velmora.Shell
import Velmora.State
import Velmora.Theme

// One issue in a window of its own.
Window {
    id: root

    required property AppStore store
    required property string key

    title: details.title
    width: 760
    height: 820
    minimumWidth: 520
    minimumHeight: 480
    color: Theme.content

    IssueWindowContent {
        id: details
        store: root.store
        key: root.key
    }

    Shortcut {
        sequences: ["Ctrl+W", "Escape"]
        onActivated: root.close()
    }

    FocusScope {
        anchors.fill: parent
        focus: true

        When {
            shown: details.isKnown

            IssueProperties {
                x: Metrics.pageMargin
                y: Metrics.pageMargin
                width: root.width - 2 * x
                content: details
            }
        }

        When {
            shown: !details.isKnown && details.errorText === ""

            Spinner {
                anchors.centerIn: parent
                size: 16
            }
        }

        AppText {
            visible: !details.isKnown
            anchors.centerIn: parent
            width: parent.width - 2 * Metrics.pageMargin
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.Wrap
            color: Theme.text2
            text: details.errorText
        }
    }

    MenuBarLayer {
        anchors.fill: parent
        store: root.store
    }
}
