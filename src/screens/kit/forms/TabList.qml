import QtQuick
import Velmora.Kit
import Velmora.Theme

/// A row of tabs, one stop of the Tab key: the arrow keys choose the previous and the next tab. Its children are
/// `IconTab`s. `name` describes what the tabs divide.
ChoiceRow {
    id: root

    required property string name

    spacing: Metrics.gapTiny
    Accessible.role: Accessible.PageTabList
    Accessible.name: name
}
