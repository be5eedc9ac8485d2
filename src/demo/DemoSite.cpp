#include "demo/DemoSite.h"

#include "model/ParsedInteger.h"

#include <algorithm>

namespace {

QMap<QString, SharedIssue> byKey(const QList<Issue> &issues)
{
    QMap<QString, SharedIssue> store;
    for (const Issue &issue : issues) {
        if (store.contains(issue.key))
            qFatal("Two issues of the demo have the key %s", qUtf8Printable(issue.key));
        store.insert(issue.key, issue);
    }
    return store;
}

QHash<QString, qint64> highestNumbers(const QList<Issue> &issues)
{
    QHash<QString, qint64> numbers;
    for (const Issue &issue : issues) {
        qint64 &highest = numbers[issue.projectKey];
        highest = std::max(highest, keyNumber(issue.key));
    }
    return numbers;
}

} // namespace

DemoSite DemoSite::from(const DemoSeed::Seed &seed)
{
    DemoSite site;
    site.store = byKey(seed.issues);
    site.sprint = seed.sprint;
    site.threads = seed.threads;
    site.history = seed.recentKeys;
    site.events = seed.events;
    site.counters = highestNumbers(seed.issues);
    return site;
}

const Issue *DemoSite::find(const QString &key) const
{
    const auto found = store.constFind(key);
    return found != store.cend() ? &**found : nullptr;
}

qint64 keyNumber(const QString &key)
{
    const QStringList pieces = key.split(u'-', Qt::SkipEmptyParts);
    return pieces.isEmpty() ? 0 : parsedInteger(pieces.last()).value_or(0);
}
