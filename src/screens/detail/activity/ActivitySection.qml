pragma ComponentBehavior: Bound

import QtQuick
import Velmora.Detail
import Velmora.Kit
import Velmora.State
import Velmora.Theme

// What happened to an open issue: its creation and its comments, which can be filtered. Connect `linkActivated`,
// `revealRequested` and `shifted` as those of a document.
Column {
    id: root

    required property AppStore store
    required property OpenIssue issue
    // Shows the media of the comments.
    property Component mediaDelegate: null
    // Shows the files of a comment below its body: an item with a required property `commentID`, of no height without
    // files.
    property Component strip: null

    signal linkActivated(address: string)
    // What has the focus should be in sight, in the coordinates of the section.
    signal revealRequested(box: rect)
    signal shifted(distance: real)

    function focusComment(index: int) {
        bubbles.itemAt(index)?.forceActiveFocus(Qt.TabFocusReason);
    }

    spacing: Metrics.panelPadding
    Accessible.role: Accessible.Grouping
    Accessible.name: "Activité"

    ActivityContent {
        id: activity
        store: root.store
        key: root.issue.key
    }

    ActivityHead {
        width: root.width
        facts: activity.facts
        onChosen: filter => activity.choose(filter)
    }

    CreationLine {
        visible: activity.facts.showsCreation
        width: root.width
        facts: activity.facts
    }

    AppText {
        visible: activity.facts.emptyText !== ""
        width: root.width
        topPadding: Metrics.gapSmall + leading
        bottomPadding: Metrics.gapSmall + leading
        role: TypeScale.Small
        color: Theme.text2
        text: activity.facts.emptyText
    }

    Column {
        width: root.width
        visible: bubbles.count > 0
        spacing: Metrics.panelPadding
        Accessible.role: Accessible.List
        Accessible.name: "Commentaires"

        Repeater {
            id: bubbles
            model: activity.comments

            CommentBubble {
                id: bubble

                required property int index

                width: root.width
                content: activity
                mediaDelegate: root.mediaDelegate
                strip: root.strip
                onStepped: by => root.focusComment(index + by)
                onLinkActivated: address => root.linkActivated(address)
                onRevealRequested: box => root.revealRequested(root.mapFromItem(bubble, box))
                onShifted: distance => root.shifted(distance)
            }
        }
    }
}
