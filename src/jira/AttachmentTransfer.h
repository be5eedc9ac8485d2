#pragma once

#include "jira/SiteConnection.h"
#include "model/Attachment.h"

#include <QDateTime>
#include <QList>

/// Uploads files, all in one request; `now` stands for dates that the answer lacks. Files are read before anything is
/// sent, and one that cannot be read fails the whole with `FileError`.
QCoro::Task<QList<Attachment>> uploaded(SiteConnectionPtr connection, QString key,
                                        QList<QUrl> files, QDateTime now, std::stop_token stop);

/// The local file of an attachment below `folder`: the one downloaded before, or a new one, which is there whole or not
/// at all. An answer that is a page instead of the file is a failure.
QCoro::Task<QUrl> downloaded(SiteConnectionPtr connection, Attachment attachment, QString folder,
                             std::stop_token stop);
