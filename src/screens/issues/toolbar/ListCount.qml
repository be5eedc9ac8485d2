import QtQuick
import Velmora.Kit
import Velmora.State
import Velmora.Theme

// The number of issues below the title. While refreshing the list fails, a sign beside it says how old the list is.
Row {
    id: root

    required property AppStore store

    spacing: Metrics.gapSmall

    AppText {
        id: count

        width: Math.min(implicitWidth, root.width)
        role: TypeScale.Badge
        weight: Font.Normal
        tabular: true
        color: Theme.text2
        text: root.store.subtitle
        elide: Text.ElideRight
        Accessible.role: Accessible.StaticText
        Accessible.name: text
        Accessible.description: root.store.countHint

        HoverHandler {
            id: countHover
        }

        HintTip {
            shown: countHover.hovered
            text: root.store.countHint
        }
    }

    Item {
        implicitWidth: age.implicitWidth
        implicitHeight: count.height
        visible: root.store.listAge.length > 0 && count.implicitWidth + root.spacing + implicitWidth <= root.width
        Accessible.role: Accessible.StaticText
        Accessible.name: "Liste pas à jour, " + root.store.listAge
        Accessible.description: root.store.loadError

        Row {
            id: age

            anchors.verticalCenter: parent.verticalCenter
            spacing: Metrics.gapTiny

            Symbol {
                anchors.verticalCenter: parent.verticalCenter
                name: "exclamationmark.triangle"
                size: 11
                color: Theme.orangeText
            }

            AppText {
                anchors.verticalCenter: parent.verticalCenter
                role: TypeScale.Badge
                weight: Font.Normal
                color: Theme.orangeText
                text: root.store.listAge
                Accessible.ignored: true
            }
        }

        HoverHandler {
            id: ageHover
        }

        HintTip {
            shown: ageHover.hovered
            text: root.store.loadError
        }
    }
}
