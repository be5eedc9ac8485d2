pragma ComponentBehavior: Bound

import QtQuick
import Velmora.Theme
import Velmora.Kit

/// A month for choosing a day. `day` and `today` are texts such as "2026-10-31". `day` is empty while none is chosen.
/// The arrow keys move by a day and by a week, Page Up and Page Down by a month, Home and End to the ends of the week.
/// Return accepts.
FocusScope {
    id: root

    property alias day: month.day
    property alias today: month.today
    readonly property real column: (width - 28) / 7

    signal accepted()

    implicitWidth: 290
    implicitHeight: grid.y + grid.height + 10
    activeFocusOnTab: true
    Accessible.role: Accessible.Grouping
    Accessible.name: "Calendrier, " + month.title
    Keys.onLeftPressed: month.moveDays(-1)
    Keys.onRightPressed: month.moveDays(1)
    Keys.onUpPressed: month.moveDays(-7)
    Keys.onDownPressed: month.moveDays(7)
    Keys.onReturnPressed: accepted()
    Keys.onEnterPressed: accepted()
    Keys.onPressed: event => {
        event.accepted = true
        switch (event.key) {
        case Qt.Key_PageUp: return month.moveMonths(-1)
        case Qt.Key_PageDown: return month.moveMonths(1)
        case Qt.Key_Home: return month.moveToWeekStart()
        case Qt.Key_End: return month.moveToWeekEnd()
        }
        event.accepted = false
    }

    CalendarMonth {
        id: month
    }

    DatePickerHead {
        x: 14
        y: 12
        width: root.width - 28
        title: month.title
        onTurned: months => month.turn(months)
    }

    Row {
        id: weekdays

        x: 14
        y: 44

        Repeater {
            model: month.weekdays

            AppText {
                required property string modelData

                width: root.column
                horizontalAlignment: Text.AlignHCenter
                text: modelData
                role: TypeScale.Caption
                weight: Font.DemiBold
                color: Theme.text3
                Accessible.ignored: true
            }
        }
    }

    Grid {
        id: grid

        x: 14
        y: 60
        columns: 7
        rowSpacing: 2

        Repeater {
            model: month.days

            DatePickerDay {
                required property calendarDay modelData

                width: root.column
                number: modelData.number
                accessibleName: modelData.name
                picked: number > 0 && modelData.day === month.day
                current: number > 0 && modelData.day === month.today
                marked: picked && root.activeFocus
                onClicked: month.day = modelData.day
            }
        }
    }
}
