pragma ComponentBehavior: Bound

import QtQuick
import Velmora.Attachments
import Velmora.Detail
import Velmora.Documents
import Velmora.Kit
import Velmora.State
import Velmora.Theme

// The scrolling part of an issue's screen. It scrolls by itself to what has the focus.
FocusScope {
    id: root

    required property AppStore store
    required property OpenIssue issue
    required property IssueFiles files
    required property AttachmentPreviewer previewer
    // The opaque colour behind the page.
    required property color ground
    readonly property int columnMaximum: 860
    readonly property bool isAtRest: view.activeFocus
    // Where the item with the focus was when the page was last laid out. Empty without such an item.
    property rect focusPlace

    // The pictures and files in the texts of the issue.
    readonly property Component media: ADFMediaView {
        required property mediaBlock block

        node: block.node
        files: root.files.files
        previewer: root.previewer
    }

    // The user has finished typing in the title.
    signal finished()
    // Another issue was chosen.
    signal chosen(key: string)

    // Scrolls as little as possible until an area of an item is in sight.
    function reveal(item: Item, area: rect) {
        const top = item.mapToItem(view.contentItem, area.x, area.y).y;
        const highest = Math.max(0, view.contentHeight - view.height);
        const bottom = Math.min(top + area.height, top + view.height);
        const wanted = Math.min(top - Metrics.gap, Math.max(view.contentY, bottom + Metrics.gap - view.height));
        view.contentY = Math.max(0, Math.min(wanted, highest));
    }

    // Another issue is shown.
    function begin() {
        title.begin();
        properties.begin();
        view.contentY = 0;
    }

    // Gives the keys to the page itself, which scrolls.
    function rest() {
        view.forceActiveFocus(Qt.OtherFocusReason);
    }

    function placeOfFocus(): rect {
        const item = Window.activeFocusItem;
        const isPart = root.activeFocus && item !== view && item !== root;
        return isPart ? item.mapToItem(view.contentItem, Qt.rect(0, 0, item.width, item.height)) : Qt.rect(0, 0, 0, 0);
    }

    function revealFocus() {
        focusPlace = placeOfFocus();
        if (focusPlace.height > 0)
            reveal(view.contentItem, focusPlace);
    }

    function isInSight(place: rect): bool {
        return place.height > 0 && place.top >= view.contentY && place.bottom <= view.contentY + view.height;
    }

    // Data that arrive can move the item with the focus. It stays in sight, unless the user has scrolled away from it.
    function followFocus() {
        const place = placeOfFocus();
        const leaves = place.top !== focusPlace.top && isInSight(focusPlace);
        focusPlace = place;
        if (leaves && place.height > 0)
            reveal(view.contentItem, place);
    }

    Window.onActiveFocusItemChanged: revealFocus()

    Flickable {
        id: view

        anchors.fill: parent
        contentHeight: column.y + column.height + Metrics.pageMargin
        clip: true
        boundsBehavior: Flickable.StopAtBounds
        focus: true
        OwnKeys.scrolls: true

        Column {
            id: column
            x: Metrics.pageMargin
            y: Metrics.gapTiny
            width: Math.min(root.width - 2 * x, root.columnMaximum)
            spacing: Metrics.gapSection
            onPositioningComplete: root.followFocus()

            TitleEditor {
                id: title
                width: parent.width
                issue: root.issue
                onFinished: root.finished()
            }

            PropertiesBar {
                id: properties
                width: parent.width
                store: root.store
                issue: root.issue
            }

            DescriptionSection {
                id: description
                width: parent.width
                height: implicitHeight
                store: root.store
                issue: root.issue
                room: view.height
                mediaDelegate: root.media
                onLinkActivated: address => root.issue.openLink(address)
                onRevealRequested: box => root.reveal(description, box)
                onShifted: distance => view.contentY += distance
            }

            AttachmentsSection {
                id: attachments
                width: parent.width
                store: root.store
                issueKey: root.issue.key
                previewer: root.previewer
                onRevealRequested: box => root.reveal(attachments, box)
            }

            When {
                shown: root.issue.subIssues.length > 0

                SubIssuesSection {
                    width: column.width
                    issue: root.issue
                    onChosen: key => root.chosen(key)
                }
            }

            Hairline {
                width: parent.width
                color: Theme.divider
            }

            ActivitySection {
                id: activity
                width: parent.width
                store: root.store
                issue: root.issue
                mediaDelegate: root.media
                strip: CommentAttachmentStrip {
                    store: root.store
                    issueKey: root.issue.key
                    previewer: root.previewer
                }
                onLinkActivated: address => root.issue.openLink(address)
                onRevealRequested: box => root.reveal(activity, box)
                onShifted: distance => view.contentY += distance
            }
        }
    }

    Scrolling {
        view: view
        ground: root.ground
    }
}
