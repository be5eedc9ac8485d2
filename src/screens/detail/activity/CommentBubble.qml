pragma ComponentBehavior: Bound

import QtQuick
import Velmora.Detail
import Velmora.Documents
import Velmora.Kit
import Velmora.Theme

// A comment: who wrote it, when, who can read it, its body and its files. The Tab key reaches it, and then its body.
Rectangle {
    id: root

    required property shownComment comment
    required property ActivityContent content
    property Component mediaDelegate: null
    property Component strip: null
    // The distance from below over which a new comment moves in.
    readonly property int rise: 24

    // The keyboard asks for the comment above or below.
    signal stepped(by: int)
    signal linkActivated(address: string)
    // What has the focus should be in sight, in the coordinates of the bubble.
    signal revealRequested(box: rect)
    signal shifted(distance: real)

    function step(press: KeyEvent, by: int) {
        press.accepted = (press.modifiers & ~Qt.KeypadModifier) === 0;
        if (press.accepted)
            stepped(by);
    }

    implicitHeight: page.implicitHeight + 2 * Metrics.panelPadding
    radius: Metrics.radiusBubble
    color: comment.isNote ? Theme.noteAt(0.1) : Theme.bubble
    border.width: comment.isNote ? 1 : 0
    border.color: Theme.noteAt(0.45)
    activeFocusOnTab: true
    OwnKeys.walksRows: true
    Keys.onUpPressed: press => step(press, -1)
    Keys.onDownPressed: press => step(press, 1)
    Accessible.role: Accessible.ListItem
    Accessible.name: comment.sentence
    Accessible.description: comment.date
    Accessible.focusable: true
    transform: Translate {
        id: place
    }
    Component.onCompleted: if (content.takeArrival(comment.id)) arrival.start()

    TabArrival {
        id: tabArrival
        item: root
        onIsShownChanged: if (isShown) root.revealRequested(Qt.rect(0, 0, root.width, root.height))
    }

    FocusRing {
        shown: tabArrival.isShown
        corner: root.radius
    }

    Avatar {
        x: Metrics.panelPadding
        y: Metrics.panelPadding
        size: 24
        user: root.comment.author
        hasUser: root.comment.hasAuthor
        nobody: root.comment.name
        Accessible.ignored: true
    }

    Column {
        id: page
        x: Metrics.panelPadding + 24 + Metrics.gapMedium
        y: Metrics.panelPadding
        width: root.width - x - Metrics.panelPadding
        spacing: Metrics.gapSmall

        CommentHead {
            width: parent.width
            comment: root.comment
        }

        When {
            shown: root.comment.hasBody

            ADFContentView {
                id: body
                width: page.width
                height: implicitHeight
                name: "Commentaire"
                node: root.comment.body
                fontSize: 13
                spacing: Metrics.gapSmall
                currentUserID: root.content.currentUserID
                localeName: root.content.localeName
                timeZone: root.content.timeZone
                mediaDelegate: root.mediaDelegate
                onLinkActivated: address => root.linkActivated(address)
                onRevealRequested: box => root.revealRequested(root.mapFromItem(body, box))
                onShifted: distance => root.shifted(distance)
            }
        }

        When {
            shown: root.strip !== null && root.comment.hasReferences

            CommentFiles {
                width: page.width
                commentID: root.comment.id
                strip: root.strip
            }
        }
    }

    ParallelAnimation {
        id: arrival

        NumberAnimation {
            target: root
            property: "opacity"
            from: 0
            to: 1
            duration: Motion.fadeDuration
        }

        NumberAnimation {
            target: place
            property: "y"
            from: Motion.reduced ? 0 : root.rise
            to: 0
            duration: Motion.stateDuration
            easing: Springs.even
        }
    }
}
