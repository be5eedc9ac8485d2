#pragma once

#include "jira/SiteConnection.h"
#include "model/Attachment.h"
#include "model/UploadProgress.h"

#include <QDateTime>
#include <QList>

/// Uploads files in one request. `now` replaces dates that are missing in the response. All files are read before
/// anything is sent; if one cannot be read, the operation fails with `Failure`. The observer is told how much of the
/// request was sent.
QCoro::Task<QList<Attachment>> uploaded(SiteConnectionPtr connection, QString key,
                                        QList<QUrl> files, QDateTime now, std::stop_token stop,
                                        UploadObserver observer);

/// The local file of an attachment below `folder`, the folder of its site: an earlier download of the announced size if
/// there is one, otherwise a new one. The file exists only once it is complete. A response of another size than the
/// announced one, or that is a web page instead of the file, is a failure.
QCoro::Task<QUrl> downloaded(SiteConnectionPtr connection, Attachment attachment, QString folder,
                             std::stop_token stop);
