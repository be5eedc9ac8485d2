pragma ComponentBehavior: Bound

import QtQuick
import Velmora.Issues
import Velmora.Kit
import Velmora.Model
import Velmora.State
import Velmora.Theme

// One status of the board: its header and, below it, the cards, which are created as they become visible.
Item {
    id: root

    required property string title
    required property int count
    required property issueStatus status
    required property IssueListModel cards
    required property string accessibleName
    required property string focusedKey
    required property CardStyle cardStyle
    // The key of the issue whose menu is open.
    property string menuKey: ""
    // The height that the bar at the board's lower edge covers.
    property int clearance: 0
    property bool hasKeyboard: false
    // A drop would move issues to this column. `dragY` is the vertical position of the drag.
    property bool isTargeted: false
    property real dragY: 0
    // The card under the pointer.
    property BoardCard hotCard: null
    readonly property int padding: Metrics.paneMargin

    signal cardClicked(key: string, modifiers: int)
    signal menuRequested(key: string, card: Item, x: real, y: real)
    signal pickRequested(kind: int, key: string, card: Item, cell: rect)
    signal dragBegun(key: string, card: PressArea)
    signal newIssueRequested()

    function revealFocusedCard() {
        scroller.revealAtOnce();
    }

    Rectangle {
        anchors.fill: parent
        radius: target.radius
        // The fill of a target replaces this one.
        opacity: 1 - target.opacity
        color: Theme.boardColumn
    }

    ColumnTarget {
        id: target
        anchors.fill: parent
        radius: Metrics.radiusPopover
        isTargeted: root.isTargeted
    }

    EdgeScroller {
        running: root.isTargeted
        view: list
        position: root.dragY - list.y
    }

    Item {
        id: head
        x: root.padding
        y: root.padding
        width: parent.width - 2 * root.padding
        height: Metrics.boardColumnHead

        StatusIcon {
            id: icon
            x: Metrics.gapSmall
            anchors.verticalCenter: parent.verticalCenter
            status: root.status
            size: 14
            Accessible.ignored: true
        }

        AppText {
            id: name
            anchors.left: icon.right
            anchors.leftMargin: Metrics.gap
            anchors.verticalCenter: parent.verticalCenter
            width: Math.min(implicitWidth, head.width - x - number.implicitWidth - 2 * Metrics.gap - Metrics.smallButton)
            weight: Font.DemiBold
            text: root.title
            Accessible.role: Accessible.Heading
        }

        AppText {
            id: number
            anchors.left: name.right
            anchors.leftMargin: Metrics.gap
            anchors.verticalCenter: parent.verticalCenter
            role: TypeScale.Small
            tabular: true
            color: Theme.text2
            text: root.count
        }

        IconButton {
            anchors.right: parent.right
            anchors.rightMargin: Metrics.gapSmall
            anchors.verticalCenter: parent.verticalCenter
            name: "Nouveau ticket"
            symbol: "plus"
            symbolWeight: "semibold"
            onClicked: root.newIssueRequested()
        }
    }

    ListView {
        id: list
        x: root.padding
        anchors.top: head.bottom
        anchors.topMargin: Metrics.gapSmall
        anchors.bottom: parent.bottom
        anchors.bottomMargin: root.padding
        width: parent.width - 2 * root.padding
        clip: contentHeight > height
        model: root.cards
        spacing: Metrics.gap
        // Lets the last card be scrolled clear of the bar at the board's lower edge.
        bottomMargin: Metrics.selectionBarRoom + Metrics.gapSmall
        boundsBehavior: Flickable.StopAtBounds
        cacheBuffer: 400
        pixelAligned: true
        // The store knows the focused card, as in the list.
        currentIndex: -1
        highlightFollowsCurrentItem: false
        keyNavigationEnabled: false

        Accessible.role: Accessible.List
        Accessible.name: root.accessibleName

        delegate: BoardCard {
            id: card
            readonly property string glideKey: issue.key
            width: list.width
            style: root.cardStyle
            hasKeyboard: root.hasKeyboard
            hasMenu: root.menuKey === issue.key
            onClicked: (position, modifiers) => root.cardClicked(issue.key, modifiers)
            onMenuRequested: (x, y) => root.menuRequested(issue.key, card, x, y)
            onHoverChanged: if (isHovered) root.hotCard = card
            onPickRequested: (kind, cell) => root.pickRequested(kind, issue.key, card, cell)
            onDragBegun: root.dragBegun(issue.key, card)
        }
    }

    Scrolling {
        view: list
        ground: Qt.tint(Theme.content, Theme.boardColumn)
        thickness: 5
        passesOn: true
        onScrolled: scroller.stop()
    }

    HoverHint {
        face: root.hotCard
    }

    EmptyColumnBox {
        visible: root.count === 0
        x: list.x
        y: list.y
        width: list.width
        height: Metrics.boardEmptyBox
    }

    FocusedRowScroller {
        id: scroller
        list: list
        rows: root.cards
        focusedKey: root.focusedKey
        headerHeight: 0
        clearance: root.clearance
    }
}
