#pragma once

#include "model/ADFNode.h"

#include <QObject>
#include <QStringList>
#include <QtQml/qqmlregistration.h>

/// A media block of a document, for the item that shows it: the node of type "media", "mediaSingle" or "mediaGroup" for
/// C++, and the attributes of its files for QML, one entry for each node of type "media". An absent attribute is empty.
struct MediaBlock
{
    Q_GADGET
    QML_VALUE_TYPE(mediaBlock)
    /// For another property of C++; QML cannot look into it.
    Q_PROPERTY(ADFNode node MEMBER node FINAL)
    Q_PROPERTY(QString kind READ kind FINAL)
    Q_PROPERTY(QStringList attachmentIDs READ attachmentIDs FINAL)
    Q_PROPERTY(QStringList fileNames READ fileNames FINAL)

public:
    ADFNode node;

    QString kind() const { return node.type; }
    /// The nodes of the files: the node itself, or its children of type "media".
    QList<ADFNode> files() const;
    /// The ids of the attachments that the files are linked to.
    QStringList attachmentIDs() const;
    /// The attribute "alt", which names the file.
    QStringList fileNames() const;

    bool operator==(const MediaBlock &) const = default;
};
