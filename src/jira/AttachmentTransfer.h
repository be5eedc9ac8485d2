#pragma once

#include "jira/SiteConnection.h"
#include "model/Attachment.h"

#include <QDateTime>
#include <QList>

/// Uploads files in one request. `now` replaces dates that are missing in the response. All files are read before
/// anything is sent; if one cannot be read, the operation fails with `FileError`.
QCoro::Task<QList<Attachment>> uploaded(SiteConnectionPtr connection, QString key,
                                        QList<QUrl> files, QDateTime now, std::stop_token stop);

/// The local file of an attachment below `folder`: an earlier download if there is one, otherwise a new one. The file
/// exists only once it is complete. A response that is a web page instead of the file is a failure.
QCoro::Task<QUrl> downloaded(SiteConnectionPtr connection, Attachment attachment, QString folder,
                             std::stop_token stop);
