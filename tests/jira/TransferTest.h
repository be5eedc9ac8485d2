#pragma once

#include "ClientTest.h"
#include "jira/AttachmentCache.h"

#include <QDir>
#include <QFile>

/// A client for transfers of files, with the folder in which it keeps downloads.
class TransferTest : public ClientTest
{
protected:
    QUrl localFile(const QString &name, const QByteArray &content) const
    {
        QFile file(cache.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
        return QUrl::fromLocalFile(file.fileName());
    }
    /// Advances the clock until the operation ends. It may take several steps, because bytes that the server sent
    /// earlier can arrive late and restart the time limit.
    bool endsByTime(const auto &result)
    {
        return runUntil([&] {
            clock.advance(std::chrono::seconds(1));
            return result.isDone();
        });
    }
    /// An attachment whose record says that it has `size` bytes.
    Attachment attachment(const QString &name = QStringLiteral("rapport.pdf"),
                          qint64 size = 4) const
    {
        Attachment result;
        result.size = size;
        result.id = QStringLiteral("10");
        result.filename = name;
        result.mimeType = QStringLiteral("application/pdf");
        result.contentURL =
            server.url().resolved(QUrl(QStringLiteral("/rest/api/3/attachment/content/10")));
        return result;
    }
    /// The folder in which the attachments of the site are kept.
    QString siteFolder() const
    {
        return AttachmentCache::siteFolder(cache.filePath(QStringLiteral("attachments")),
                                           server.url());
    }
    /// Puts a file where the download of `attachment` is kept.
    QString store(const Attachment &attachment, const QByteArray &content) const
    {
        const QString path = AttachmentCache::file(siteFolder(), attachment);
        QDir().mkpath(QFileInfo(path).path());
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
        return path;
    }
    /// The paths of all files in the folder of the site, relative to it.
    QStringList cached() const
    {
        const QDir folder(siteFolder());
        QStringList files;
        for (const QString &sub :
             folder.entryList(QDir::Dirs | QDir::NoDotAndDotDot | QDir::Hidden)) {
            for (const QString &name :
                 QDir(folder.filePath(sub)).entryList(QDir::Files | QDir::Hidden))
                files.append(sub + u'/' + name);
        }
        return files + folder.entryList(QDir::Files | QDir::Hidden);
    }
    static QByteArray contentOf(const QUrl &url)
    {
        QFile file(url.toLocalFile());
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    }
    static QString impossible(const QString &name)
    {
        return QStringLiteral("Téléchargement de « ") + name + QStringLiteral(" » impossible.");
    }
};
