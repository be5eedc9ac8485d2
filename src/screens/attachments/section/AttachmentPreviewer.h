#pragma once

#include "platform/files/FileTools.h"
#include "screens/attachments/facts/AttachmentFile.h"
#include "state/AppStore.h"

#include <QObject>
#include <QPointer>
#include <QQuickWindow>
#include <QRect>
#include <QUrl>
#include <QtQml/qqmlregistration.h>

/// A file under preview.
struct PreviewedFile
{
    Q_GADGET
    QML_VALUE_TYPE(previewedFile)
    /// The local file; empty for none.
    Q_PROPERTY(QUrl url MEMBER url CONSTANT FINAL)
    Q_PROPERTY(AttachmentFile file MEMBER file CONSTANT FINAL)

public:
    QUrl url;
    AttachmentFile file;

    bool operator==(const PreviewedFile &) const = default;
};

/// What users do with the file of an attachment: preview, open, show and save it. All views of an issue screen share
/// one object. Every operation first fetches the file to the local cache; if that fails, the store reports it and
/// nothing else happens.
class AttachmentPreviewer : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(AppStore *store READ store WRITE setStore NOTIFY storeChanged FINAL REQUIRED)
    /// The issue on screen. The preview of a file of another issue ends.
    Q_PROPERTY(QString key READ key WRITE setKey NOTIFY keyChanged FINAL)
    /// The files that the arrow keys go through in the preview.
    Q_PROPERTY(QList<AttachmentFile> files READ files WRITE setFiles NOTIFY filesChanged FINAL)
    /// The local file under preview. Empty while nothing is previewed.
    Q_PROPERTY(QUrl url READ url NOTIFY urlChanged FINAL)
    Q_PROPERTY(bool isPreviewing READ isPreviewing NOTIFY urlChanged FINAL)
    /// The same with its attachment.
    Q_PROPERTY(PreviewedFile shown READ shown NOTIFY urlChanged FINAL)
    /// The identifier of the attachment that is being fetched; empty for none. A second fetch replaces the first, and
    /// the first to end clears it.
    Q_PROPERTY(QString loadingID READ loadingID NOTIFY loadingIDChanged FINAL)
    /// The menu entry that shows the file in the file manager.
    Q_PROPERTY(QString revealTitle READ revealTitle CONSTANT FINAL)
    /// The window to which dialogs belong.
    Q_PROPERTY(QQuickWindow *window MEMBER m_window NOTIFY windowChanged FINAL)

public:
    using QObject::QObject;

    AppStore *store() const { return m_store; }
    void setStore(AppStore *store);
    const QString &key() const { return m_key; }
    void setKey(const QString &key);
    const QList<AttachmentFile> &files() const { return m_files; }
    void setFiles(const QList<AttachmentFile> &files);
    const QUrl &url() const { return m_shown.url; }
    bool isPreviewing() const { return !m_shown.url.isEmpty(); }
    const PreviewedFile &shown() const { return m_shown; }
    const AttachmentFile &file() const { return m_shown.file; }
    const QString &loadingID() const { return m_loadingID; }
    QString revealTitle() const;
    /// Replaces the dialogs and the file manager of the system.
    void setTools(FileTools tools) { m_tools = std::move(tools); }

    /// A click on a file: previews it, unless a second click follows within the double-click time of the system, which
    /// opens it.
    Q_INVOKABLE void click(const AttachmentFile &file);
    Q_INVOKABLE void preview(const AttachmentFile &file);
    /// Opens the file in its default program.
    Q_INVOKABLE void open(const AttachmentFile &file);
    /// Shows the file in the file manager.
    Q_INVOKABLE void reveal(const AttachmentFile &file);
    /// Asks for a place and saves a copy there. A toast tells the end; a cancelled dialog tells nothing.
    Q_INVOKABLE void save(const AttachmentFile &file);
    /// Where a window of this size opens for the preview, in the coordinates of the desktop.
    Q_INVOKABLE QRect placeOfPreview(QSize wanted) const;
    /// Ends the preview.
    Q_INVOKABLE void close();
    /// Previews the file that is `by` places after the present one in `files`; nothing beyond the ends.
    Q_INVOKABLE void step(int by);

Q_SIGNALS:
    void storeChanged();
    void keyChanged();
    void filesChanged();
    void urlChanged();
    void loadingIDChanged();
    void windowChanged();

private:
    enum class Purpose { Preview, Open, Reveal, Save };

    QCoro::Task<> run(AttachmentFile file, Purpose purpose);
    QCoro::Task<> saveAs(AttachmentFile file, QUrl local);
    QCoro::Task<std::optional<QUrl>> fetched(Attachment attachment);
    void begin(const AttachmentFile &file, Purpose purpose);
    void show(const PreviewedFile &shown);
    void setLoadingID(const QString &id);
    FileTools tools();

    QPointer<AppStore> m_store;
    QPointer<QQuickWindow> m_window;
    FileTools m_tools;
    QString m_key;
    QList<AttachmentFile> m_files;
    PreviewedFile m_shown;
    QString m_loadingID;
    /// The preview that was asked for last. An older one that is fetched later is not shown.
    QString m_wantedID;
    /// The file of a first click.
    AttachmentFile m_clicked;
    Clock::TimerHandle m_clickTimer;
};
