import QtQuick

// The files that a comment refers to, as the owner of the screen shows them. `strip` makes an item with a property
// `commentID`, which is as high as its implicit height: 0 without files, and then no space is taken.
Item {
    id: root

    required property string commentID
    required property Component strip
    property Item files: null

    visible: files !== null && files.implicitHeight > 0
    implicitHeight: files ? files.implicitHeight : 0
    Component.onCompleted: {
        files = strip.createObject(root, {
            commentID: root.commentID,
            width: Qt.binding(() => root.width)
        }) as Item;
    }
}
