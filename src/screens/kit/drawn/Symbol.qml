import QtQuick
import Velmora.Theme
import Velmora.Kit

/// A symbol, selected by its name in assets/symbols.tsv. `size` is the font size of the text beside it, and the side of
/// its square is 1.15 times that. `weight` is regular, medium, semibold, bold or heavy. The symbol is ignored by screen
/// readers unless `meaning` is set.
Item {
    id: root

    required property string name
    property real size: 13
    property string weight: "regular"
    property color color: Theme.text1
    property string meaning
    readonly property int side: IconAddresses.symbolSide(size)
    readonly property int border: IconAddresses.symbolBorder(side)

    implicitWidth: side
    implicitHeight: side
    Accessible.role: Accessible.Graphic
    Accessible.name: meaning
    Accessible.ignored: meaning.length === 0

    Image {
        anchors.centerIn: parent
        width: root.side + 2 * root.border
        height: width
        sourceSize.width: width
        sourceSize.height: height
        source: root.name.length > 0
                ? IconAddresses.symbol(root.name, root.size, root.weight, root.color) : ""
    }
}
