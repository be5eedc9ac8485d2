#pragma once

#include <QByteArray>
#include <QCoro/QCoroTask>
#include <QImage>
#include <QString>
#include <QUrl>

#include <memory>

/// A picture in a temporary file. Only the user can read the file and its folder. Both are deleted with the last copy of
/// this object.
class CaptureFile
{
public:
    /// The picture in PNG format; empty if it cannot be encoded. Runs outside the caller's thread.
    static QCoro::Task<QByteArray> png(QImage image);
    /// Writes the bytes to a file called `name` in a new folder below `parent`, outside the caller's thread. Fails with
    /// `Failure`.
    static QCoro::Task<CaptureFile> store(QByteArray bytes, QString name, QString parent);

    QUrl address() const { return QUrl::fromLocalFile(m_file->path); }

private:
    struct File
    {
        explicit File(const QString &path) : path(path) {}
        ~File();
        Q_DISABLE_COPY_MOVE(File)

        const QString path;
    };

    explicit CaptureFile(const QString &path) : m_file(std::make_shared<const File>(path)) {}

    static CaptureFile stored(const QByteArray &bytes, const QString &name, const QString &parent);

    std::shared_ptr<const File> m_file;
};
