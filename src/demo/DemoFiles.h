#pragma once

#include "model/Attachment.h"
#include "model/JiraUser.h"

#include <QDateTime>
#include <QString>
#include <QUrl>

#include <optional>

/// The files behind the demo's attachments: real ones, so that they open and save like any other.
namespace DemoFiles {

/// Copies a local file into a new folder `id` inside `folder`, under its own name, and gives the copy's address. The
/// folders are made as needed. Fails with a `Failure` that names the file.
QUrl store(const QUrl &file, const QString &folder, const QString &id);

/// The record of a local file. Its id depends on nothing but the path; its date lies as many hours before `now` as the
/// file's name has characters, which spreads files over the past without storing a date. A file that cannot be read has
/// the size 0.
Attachment attachment(const QUrl &file, const std::optional<JiraUser> &author,
                      const QDateTime &now);

} // namespace DemoFiles
