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
            hasLeading: modelData.hasIcon || modelData.symbol !== ""
            isNear: false
            checked: modelData.isOn
            topPadding: modelData.startsGroup ? 11 : 0
            topInset: topPadding
            implicitHeight: Metrics.menuRowHeight + topPadding
            onTriggered: root.chosen(modelData)

            When {
                shown: row.isNear && row.modelData.startsGroup

                Rectangle {
                    x: 9
                    y: 5
                    width: row.width - 18
                    height: 1
                    color: Theme.divider
                }
            }

            When {
                shown: row.isNear && row.modelData.hasIcon

                OptionIconView {
                    icon: row.modelData.icon
                    initialsOnly: true
                    Accessible.ignored: true
                    Component.onCompleted: row.leading = this
                }
            }
        }
    }
}
