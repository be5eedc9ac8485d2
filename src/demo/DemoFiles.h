#pragma once

#include "model/Attachment.h"
#include "model/JiraUser.h"

#include <QDateTime>
#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>
#include <QUrl>

#include <optional>

/// The files of the demo's attachments. They are real files, so that they can be opened and saved like others. Every
/// function may be called on any thread.
namespace DemoFiles {

/// The attachments that each demo starts with, by issue key: two pictures and a log, directly inside `folder`. A file
/// that is not there yet has the size 0.
QHash<QString, QList<Attachment>> seed(const QString &folder, const QDateTime &now);

/// True if all files of the seed are there.
bool isComplete(const QString &folder);

/// Creates the folder, draws the pictures that are missing, and writes the log anew. What cannot be written is left out.
void write(const QString &folder);

/// Reads the sizes of the files again.
void updateSizes(QList<Attachment> &attachments);

/// Copies a local file under its own name into a new folder `id` inside `folder` and returns the address of the copy.
/// Missing folders are created. Fails with a `Failure` that names the file.
QUrl store(const QUrl &file, const QString &folder, const QString &id);

/// Stores the files one after the other, in folders with the given ids, and returns their attachments. Fails at the
/// first file that cannot be copied; the copies made before stay on disk.
QList<Attachment> storeAll(const QList<QUrl> &files, const QString &folder, const QStringList &ids,
                           const JiraUser &author, const QDateTime &now);

/// The attachment record of a local file. Its id depends only on the path. Its date lies as many hours before `now` as
/// the file's name has characters, so that dates vary without being stored. A file that cannot be read has the size 0.
Attachment attachment(const QUrl &file, const std::optional<JiraUser> &author,
                      const QDateTime &now);

} // namespace DemoFiles
