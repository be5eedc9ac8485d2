#pragma once

#include "model/Attachment.h"
#include "model/JiraUser.h"

#include <QDateTime>
#include <QString>
#include <QUrl>

#include <optional>

/// The files of the demo's attachments. They are real files, so that they can be opened and saved like others.
namespace DemoFiles {

/// Copies a local file under its own name into a new folder `id` inside `folder` and returns the address of the copy.
/// Missing folders are created. Fails with a `Failure` that names the file.
QUrl store(const QUrl &file, const QString &folder, const QString &id);

/// The attachment record of a local file. Its id depends only on the path. Its date lies as many hours before `now` as
/// the file's name has characters, so that dates vary without being stored. A file that cannot be read has the size 0.
Attachment attachment(const QUrl &file, const std::optional<JiraUser> &author,
                      const QDateTime &now);

} // namespace DemoFiles
