pragma ComponentBehavior: Bound

import QtQml
import QtQuick
import Velmora.Issues
import Velmora.Kit
import Velmora.Options
import Velmora.Theme

// A submenu that is generated from data. Its rows are created when its title is first highlighted, because a site can
// have hundreds of people.
PopupMenu {
    id: root

    required property menuSection section
    // Its title is the highlighted row of the parent menu.
    required property bool isReached

    property bool isFilled: false

    signal chosen(choice: menuChoice)

    title: section.title
    onIsReachedChanged: isFilled = isFilled || isReached

    Instantiator {
        model: root.isFilled ? root.section.choices : []
        onObjectAdded: (index, object) => root.insertItem(index, object as Item)
        onObjectRemoved: (index, object) => root.removeItem(object as Item)

        PopupMenuItem {
            id: row

            required property menuChoice modelData

            text: modelData.title
            symbol: modelData.symbol
            leading: modelData.hasIcon ? picture : null
            checked: modelData.isOn
            topPadding: modelData.startsGroup ? 11 : 0
            topInset: topPadding
            implicitHeight: Metrics.menuRowHeight + topPadding
            onTriggered: root.chosen(modelData)

            Rectangle {
                visible: row.modelData.startsGroup
                x: 9
                y: 5
                width: parent.width - 18
                height: 1
                color: Theme.divider
            }

            OptionIconView {
                id: picture
                visible: row.modelData.hasIcon
                icon: row.modelData.icon
                Accessible.ignored: true
            }
        }
    }
}
