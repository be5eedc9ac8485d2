import QtQuick
import Velmora.Composer
import Velmora.Gallery
import Velmora.Kit

/// Comment composers: empty, with a reply to a customer, with an internal note, and with suggestions for a mention.
Column {
    id: root

    spacing: 24

    AppText {
        text: "Commentaire"
        weight: Font.DemiBold
    }

    CommentComposer {
        composition: SampleComposition {}
    }

    AppText {
        text: "Projet de service : réponse au client"
        weight: Font.DemiBold
    }

    CommentComposer {
        composition: SampleComposition {
            allowsInternal: true
        }
    }

    AppText {
        text: "Projet de service : note interne"
        weight: Font.DemiBold
    }

    CommentComposer {
        composition: SampleComposition {
            allowsInternal: true
            Component.onCompleted: isInternal = true
        }
    }

    AppText {
        text: "Mention en cours"
        weight: Font.DemiBold
    }

    CommentComposer {
        id: mentioning

        width: 600
        focus: true
        composition: SampleComposition {}
        Component.onCompleted: {
            mentioning.write();
            composition.beginMention();
        }
    }

    // Space for the suggestions.
    Item {
        width: 1
        height: 260
    }
}
