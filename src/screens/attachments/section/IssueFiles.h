#pragma once

#include "screens/attachments/section/FileTileModel.h"
#include "state/AppStore.h"

#include <QObject>
#include <QPointer>
#include <QtQml/qqmlregistration.h>

/// The files of an issue, kept up to date, and the changes that users make to them. Failures are shown in toasts.
class IssueFiles : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(AppStore *store READ store WRITE setStore NOTIFY storeChanged FINAL REQUIRED)
    Q_PROPERTY(QString key READ key WRITE setKey NOTIFY keyChanged FINAL REQUIRED)
    Q_PROPERTY(QList<AttachmentFile> files READ files NOTIFY changed FINAL)
    Q_PROPERTY(int count READ count NOTIFY changed FINAL)
    Q_PROPERTY(FileTileModel *tiles READ tiles CONSTANT FINAL)
    /// The number of all tiles, of which the model may not yet contain the last.
    Q_PROPERTY(int tileCount READ tileCount NOTIFY changed FINAL)
    /// The text of the area on which files are dropped.
    Q_PROPERTY(QString dropText READ dropText NOTIFY keyChanged FINAL)

public:
    using QObject::QObject;

    AppStore *store() const { return m_store; }
    void setStore(AppStore *store);
    const QString &key() const { return m_key; }
    void setKey(const QString &key);
    QList<AttachmentFile> files() const;
    int count() const { return int(m_attachments.size()); }
    FileTileModel *tiles() { return &m_tiles; }
    int tileCount() const { return int(m_tiles.allRows().size()); }
    QString dropText() const;

    const QList<Attachment> &attachments() const { return m_attachments; }

    /// Uploads local files to the issue; addresses of other kinds are ignored.
    Q_INVOKABLE void upload(const QList<QUrl> &addresses);
    /// The same for the issue with this key, which may not be the present one any more.
    Q_INVOKABLE void uploadTo(const QString &key, const QList<QUrl> &addresses);
    /// Uploads the files or the picture on the clipboard.
    Q_INVOKABLE void paste();
    /// Cancels an upload with all of its files; does nothing once it has ended.
    Q_INVOKABLE void cancel(const UploadFacts &upload);
    /// Deletes a file of the issue; does nothing with a file of another one.
    Q_INVOKABLE void remove(const AttachmentFile &file);

Q_SIGNALS:
    void storeChanged();
    void keyChanged();
    void changed();

private:
    void update();
    void noteUploads(const QString &key);

    QPointer<AppStore> m_store;
    QString m_key;
    QList<Attachment> m_attachments;
    QList<RunningUpload> m_uploads;
    FileTileModel m_tiles;
};
