pragma ComponentBehavior: Bound

import QtQuick
import Velmora.Detail
import Velmora.Kit
import Velmora.State
import Velmora.Theme

// An open issue: its project, its title and its properties. It is shown in the inspector, or fills a window.
FocusScope {
    id: root

    required property AppStore store
    required property string key
    property bool inWindow: false
    readonly property string title: open.title
    // The top and the height of the breadcrumb, and the space between its parts.
    readonly property int crumbTop: 46
    readonly property int crumbHeight: 36
    readonly property int crumbGap: 7

    signal closed()

    OpenIssue {
        id: open
        store: root.store
        key: root.key
    }

    DetailToolbar {
        id: tools
        anchors.right: parent.right
        anchors.rightMargin: Metrics.panelPadding
        y: Metrics.gapSmall
        visible: open.isKnown
        inWindow: root.inWindow
        issue: open
    }

    GlassPanel {
        id: crumb
        x: Metrics.gapMedium
        y: root.crumbTop
        width: parent.width - 2 * x
        height: root.crumbHeight
        shadow: "capsule"
        color: Theme.glass

        Row {
            x: Metrics.gapLarge
            height: parent.height
            spacing: root.crumbGap

            When {
                shown: open.hasProject

                ProjectBadge {
                    y: (crumb.height - height) / 2
                    project: open.project
                    Accessible.ignored: true
                }
            }

            AppText {
                anchors.verticalCenter: parent.verticalCenter
                text: open.projectName
            }

            Symbol {
                anchors.verticalCenter: parent.verticalCenter
                name: "chevron.right"
                size: 9
                weight: "semibold"
                color: Theme.text2
            }

            AppText {
                anchors.verticalCenter: parent.verticalCenter
                weight: Font.Medium
                tabular: true
                text: root.key
            }
        }

        IconButton {
            visible: !root.inWindow
            anchors.right: parent.right
            anchors.rightMargin: Metrics.gapSmall
            anchors.verticalCenter: parent.verticalCenter
            name: "Fermer l'inspecteur"
            hint: Hints.close
            symbol: "xmark"
            symbolWeight: "semibold"
            onClicked: root.closed()
        }
    }

    Flickable {
        id: content

        anchors.top: crumb.bottom
        anchors.bottom: parent.bottom
        width: parent.width
        contentHeight: page.implicitHeight + 2 * Metrics.gap
        clip: true
        boundsBehavior: Flickable.StopAtBounds

        Column {
            id: page
            x: Metrics.pageMargin
            y: Metrics.gap
            width: parent.width - 2 * x
            spacing: Metrics.gapSection

            AppText {
                width: parent.width
                role: TypeScale.Title1
                wrapMode: Text.Wrap
                text: open.issue.summary
                Accessible.role: Accessible.Heading
            }

            PropertiesBar {
                width: parent.width
                visible: open.isKnown
                store: root.store
                issue: open
            }
        }
    }

    Scrolling {
        view: content
        ground: root.inWindow ? Theme.content : Theme.inspector
    }

    When {
        shown: open.errorText !== ""

        UnavailableScreen {
            width: root.width
            height: root.height
            symbol: "exclamationmark.triangle"
            title: "Ticket indisponible"
            description: open.errorText
            action: "Réessayer"
            onActionChosen: open.load()
        }
    }

    When {
        shown: !open.isKnown && open.errorText === ""

        Spinner {
            x: (root.width - width) / 2
            y: (root.height - height) / 2
            size: 16
        }
    }
}
