import QtQuick
import Velmora.Composer
import Velmora.Kit
import Velmora.Theme

// The choice of who will read a comment in a service project.
Item {
    id: root

    required property Composition composition

    implicitHeight: 30

    Row {
        id: choices

        y: 2
        spacing: 2

        ReaderChoice {
            text: "Répondre au client"
            symbol: "person.wave.2.fill"
            on: !root.composition.isInternal
            tint: Theme.accent
            ink: Theme.accentText
            onChosen: root.composition.isInternal = false
        }

        ReaderChoice {
            text: "Note interne"
            symbol: "lock.fill"
            on: root.composition.isInternal
            tint: Theme.internalNote
            ink: Theme.noteText
            onChosen: root.composition.isInternal = true
        }
    }

    Row {
        anchors.right: parent.right
        anchors.rightMargin: Metrics.gapSmall
        anchors.verticalCenter: parent.verticalCenter
        // A narrow box has no space for the hint. The placeholder says the same.
        visible: !root.composition.isInternal && width <= root.width - choices.width - Metrics.gap
        spacing: 5

        Symbol {
            anchors.verticalCenter: parent.verticalCenter
            name: "exclamationmark.circle"
            size: 10.5
            color: Theme.text2
        }

        AppText {
            anchors.verticalCenter: parent.verticalCenter
            role: TypeScale.Caption
            color: Theme.text2
            text: "Le client recevra ce message"
        }
    }
}
