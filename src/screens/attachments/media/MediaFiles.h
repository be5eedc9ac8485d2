#pragma once

#include "model/ADFNode.h"
#include "screens/attachments/facts/AttachmentFile.h"

#include <QObject>
#include <QVariant>
#include <QtQml/qqmlregistration.h>

/// What a media node of a document shows.
struct MediaItem
{
    Q_GADGET
    QML_VALUE_TYPE(mediaItem)
    /// The attachment was found.
    Q_PROPERTY(bool isFound MEMBER isFound CONSTANT FINAL)
    Q_PROPERTY(AttachmentFile file MEMBER file CONSTANT FINAL)

public:
    bool isFound = false;
    AttachmentFile file;

    bool operator==(const MediaItem &) const = default;
};

/// The attachments that a node of a document shows.
class MediaFiles : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    /// The attachments of the issue.
    Q_PROPERTY(QList<AttachmentFile> files READ files WRITE setFiles NOTIFY filesChanged FINAL)
    /// The node, as an `ADFNode` in a variant, because this module does not know the one that declares it to QML.
    Q_PROPERTY(QVariant node READ node WRITE setNode NOTIFY nodeChanged FINAL)
    /// One for each media node.
    Q_PROPERTY(QList<MediaItem> items READ items NOTIFY itemsChanged FINAL)

public:
    using QObject::QObject;

    const QList<AttachmentFile> &files() const { return m_files; }
    void setFiles(const QList<AttachmentFile> &files);
    QVariant node() const { return QVariant::fromValue(m_node); }
    void setNode(const QVariant &node);
    const QList<MediaItem> &items() const { return m_items; }

Q_SIGNALS:
    void filesChanged();
    void nodeChanged();
    void itemsChanged();

private:
    void update();

    QList<AttachmentFile> m_files;
    ADFNode m_node;
    QList<MediaItem> m_items;
};
