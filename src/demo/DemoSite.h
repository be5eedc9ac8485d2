#pragma once

#include "demo/DemoSeed.h"
#include "model/Attachment.h"
#include "model/Comment.h"
#include "model/Issue.h"

#include <QHash>
#include <QMap>
#include <QSet>
#include <QString>
#include <QStringList>

/// All data of a demo site, as a value.
struct DemoSite
{
    /// Every issue by its key, as stored: without details, events, sub-tasks and attachments. The map is ordered, so
    /// that issues that a list does not order have the same order in every fetch.
    QMap<QString, SharedIssue> store;
    /// The keys of the issues of the running sprint.
    QSet<QString> sprint;
    /// The comments by issue key, oldest first.
    QHash<QString, QList<Comment>> threads;
    /// The keys of the recently opened issues, the latest first, without duplicates.
    QStringList history;
    /// The highest issue number used, by project key.
    QHash<QString, qint64> counters;
    /// The change log by issue key; the latest entry is the last.
    QHash<QString, QList<ActivityEvent>> events;
    /// The attachments by issue key.
    QHash<QString, QList<Attachment>> files;

    /// The site with the data of the seed. The program is aborted if two issues have the same key.
    static DemoSite from(const DemoSeed::Seed &seed);

    /// The issue with this key; null if there is none. The pointer is valid until the site changes.
    const Issue *find(const QString &key) const;
};

/// The number at the end of an issue's key: its last non-empty part between dashes; 0 if that is not a number.
qint64 keyNumber(const QString &key);
