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

/// All that a demo knows: the made-up site's data, as a value.
struct DemoSite
{
    /// Every issue by its key, as stored: without details, events, sub-tasks and attachments. Ordered, so that issues
    /// that a list cannot tell apart keep their places from one fetch to the next.
    QMap<QString, SharedIssue> store;
    /// The keys of the issues of the running sprint.
    QSet<QString> sprint;
    /// The comments by issue key, oldest first.
    QHash<QString, QList<Comment>> threads;
    /// The keys of the issues opened lately, the latest first, each once.
    QStringList history;
    /// The highest issue number used, by project key.
    QHash<QString, qint64> counters;
    /// The change log by issue key, in order of appending.
    QHash<QString, QList<ActivityEvent>> events;
    /// The attachments by issue key.
    QHash<QString, QList<Attachment>> files;

    /// The site as a demo starts with it. Two issues with one key stop the program.
    static DemoSite from(const DemoSeed::Seed &seed);

    /// The issue with this key; null when there is none. Valid until the site changes.
    const Issue *find(const QString &key) const;
};

/// The number at the end of an issue's key: its last piece between dashes, empty pieces aside; 0 when that is none.
qint64 keyNumber(const QString &key);
