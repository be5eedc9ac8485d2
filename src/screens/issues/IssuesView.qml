pragma ComponentBehavior: Bound

import QtQuick
import Velmora.Issues
import Velmora.Kit
import Velmora.Model
import Velmora.State
import Velmora.Theme

// The frame round the list: title and commands above, and below them the issues or what stands in their place.
FocusScope {
    id: root

    required property AppStore store

    IssuesContent {
        id: content
        store: root.store
    }

    IssuesToolbar {
        id: toolbar
        width: parent.width
        store: root.store
    }

    When {
        shown: content.isRecap

        RecapHeader {
            x: Metrics.paneMargin
            y: toolbar.height
            width: root.width - 2 * Metrics.paneMargin
            store: root.store
            onHeightChanged: body.recapHeight = height + Metrics.gapMedium
            Component.onDestruction: body.recapHeight = 0
        }
    }

    Item {
        id: body

        // What the recap's header takes from the list.
        property real recapHeight: 0

        anchors.top: toolbar.bottom
        anchors.topMargin: recapHeight
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.bottom: parent.bottom

        When {
            shown: content.kind === IssuesContent.Loading

            LoadingRows {
                anchors.fill: parent
            }
        }

        When {
            shown: content.kind === IssuesContent.Failed

            UnavailableScreen {
                anchors.fill: parent
                symbol: "exclamationmark.triangle"
                title: "Impossible de charger les tickets"
                description: root.store.loadError
                action: "Réessayer"
                isProminent: true
                onActionChosen: root.store.refresh()
            }
        }

        When {
            shown: content.kind === IssuesContent.Issues && root.store.layout === Model.LayoutMode.Board

            BoardView {
                anchors.fill: parent
                store: root.store
            }
        }

        When {
            shown: content.kind === IssuesContent.Issues && root.store.layout === Model.LayoutMode.List

            IssueListView {
                anchors.fill: parent
                anchors.leftMargin: Metrics.paneMargin
                anchors.rightMargin: Metrics.paneMargin
                store: root.store
            }
        }

        When {
            shown: content.kind === IssuesContent.Empty

            UnavailableScreen {
                anchors.fill: parent
                symbol: content.empty.symbol
                title: content.empty.title
                description: content.empty.description
                action: content.empty.action
                onActionChosen: content.runEmptyAction()
            }
        }
    }
}
