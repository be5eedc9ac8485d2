#pragma once

#include "screens/attachments/facts/AttachmentFile.h"
#include "state/AppStore.h"

#include <QObject>
#include <QPointer>
#include <QtQml/qqmlregistration.h>

/// The attachments that are listed under a comment, because it refers to them without showing them in its text.
class CommentStripFiles : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(AppStore *store READ store WRITE setStore NOTIFY storeChanged FINAL REQUIRED)
    /// The issue of the comment.
    Q_PROPERTY(QString key READ key WRITE setKey NOTIFY keyChanged FINAL REQUIRED)
    Q_PROPERTY(QString commentID READ commentID WRITE setCommentID NOTIFY keyChanged FINAL REQUIRED)
    Q_PROPERTY(QList<AttachmentFile> files READ files NOTIFY filesChanged FINAL)

public:
    using QObject::QObject;

    AppStore *store() const { return m_store; }
    void setStore(AppStore *store);
    const QString &key() const { return m_key; }
    void setKey(const QString &key);
    const QString &commentID() const { return m_commentID; }
    void setCommentID(const QString &id);
    const QList<AttachmentFile> &files() const { return m_files; }

Q_SIGNALS:
    void storeChanged();
    void keyChanged();
    void filesChanged();

private:
    void update();

    QPointer<AppStore> m_store;
    QString m_key;
    QString m_commentID;
    QList<AttachmentFile> m_files;
};
