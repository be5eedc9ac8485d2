import QtQuick

// The files that a comment refers to, as the owner of the screen shows them. `strip` makes an item with a property
// `commentID`, which is as high as its implicit height: 0 without files, and then a column leaves no gap for it. (It must
// not be hidden then, because hidden items count for no height.)
Item {
    id: root

    required property string commentID
    required property Component strip
    property Item files: null

    implicitHeight: files ? files.implicitHeight : 0
    Component.onCompleted: {
        files = strip.createObject(root, {
            commentID: root.commentID,
            width: Qt.binding(() => root.width)
        }) as Item;
    }
}
