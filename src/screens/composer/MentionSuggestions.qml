pragma ComponentBehavior: Bound

import QtQuick
import Velmora.Composer
import Velmora.Kit
import Velmora.Options
import Velmora.Theme

// The users who are suggested for the mention that is being typed: above or below the box, because the choice of readers
// in it must stay visible, and at the caret. The focus stays in the editor.
Popover {
    id: root

    required property Item box
    required property InputArea editor
    required property Composition composition
    required property DefaultAction sending

    // The highlighted user and how many there are, for screen readers. Empty while nobody is suggested.
    readonly property string spoken: isWanted ? list.spoken : ""
    readonly property bool isWanted: composition.hasSuggestions && editor.activeFocus

    function showOrHide() {
        if (isWanted)
            spot = caret();
        visible = isWanted;
    }

    // The whole height of the box at the caret.
    function caret(): rect {
        const inWindow = editor.caretInWindow();
        const place = box.mapFromItem(null, inWindow.x, inWindow.y);
        return Qt.rect(place.x, 0, inWindow.width, box.height);
    }

    parent: box
    name: "Mentions"
    implicitWidth: Math.min(320, roomSize.width - 16)
    leavesFocus: true
    onIsWantedChanged: showOrHide()
    // A press outside has closed it.
    onClosed: if (isWanted) composition.dismiss()

    MentionOptions {
        id: options

        composition: root.composition
        onHighlightMoved: row => list.highlighted = row
    }

    OptionList {
        id: list

        source: options
        onHighlightedChanged: if (!options.isUpdating) root.composition.highlighted = highlighted
    }

    Item {
        width: root.width
        implicitHeight: rows.y + rows.implicitHeight

        // The newest is asked first: sending comes before completing a mention.
        KeyMonitorModifier {
            handler: MentionKeys {
                composition: root.composition
            }
        }

        KeyMonitorModifier {
            handler: root.sending
        }

        AppText {
            id: heading

            x: Metrics.gapLarge
            y: Metrics.gap
            role: TypeScale.Caption
            weight: Font.DemiBold
            color: Theme.text2
            text: "Mentionner"
            Accessible.role: Accessible.Heading
        }

        OptionRows {
            id: rows

            y: heading.y + heading.height
            width: parent.width
            list: list
            name: "Mentions"
        }
    }
}
