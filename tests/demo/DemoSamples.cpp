#include "demo/DemoSamples.h"

#include "demo/DemoFiles.h"
#include "model/JiraError.h"

#include <QTemporaryDir>
#include <QTimeZone>

using namespace Qt::StringLiterals;

UserCalendar paris()
{
    return {QLocale(QLocale::French, QLocale::France), QTimeZone("Europe/Paris")};
}

QDateTime testNow()
{
    return inParis(10, 29, 14, 32);
}

QDateTime inParis(int month, int day, int hour, int minute)
{
    return QDateTime({2026, month, day}, {hour, minute}, QTimeZone("Europe/Paris")).toUTC();
}

DemoSeed::NewID countingIDs()
{
    return [last = 0]() mutable { return QString::number(++last); };
}

DemoSeed::Seed testSeed()
{
    return DemoSeed::make(testNow(), paris(), countingIDs());
}

QString seededFolder()
{
    static const QTemporaryDir folder;
    static const QString path = [] {
        DemoFiles::write(folder.path());
        return folder.path();
    }();
    return path;
}

DemoSources steadySources(const QString &folder)
{
    return {[](int) { return 0; }, countingIDs(), folder};
}

Issue sampleIssue(const QString &key)
{
    Issue issue;
    issue.id = u"id-"_s + key;
    issue.key = key;
    issue.summary = u"Exemple"_s;
    issue.status = DemoSeed::statuses().at(1);
    issue.projectKey = u"T"_s;
    issue.created = testNow().addDays(-40);
    issue.updated = testNow().addSecs(-3600);
    return issue;
}

DemoSite siteOf(const QList<Issue> &issues)
{
    DemoSeed::Seed seed;
    seed.issues = issues;
    return DemoSite::from(seed);
}

QStringList keysOf(const IssueList &issues)
{
    QStringList keys;
    for (const SharedIssue &issue : issues)
        keys += issue->key;
    return keys;
}

QStringList words(const char *text)
{
    return QString::fromUtf8(text).split(u' ', Qt::SkipEmptyParts);
}

JiraError::Http httpFailure(const std::function<void()> &operation)
{
    try {
        operation();
    } catch (const JiraError &error) {
        if (const auto *http = std::get_if<JiraError::Http>(&error.value()))
            return *http;
    }
    ADD_FAILURE() << "no http error";
    return {};
}

QStringList DemoServiceFixture::list(const IssueScope &scope)
{
    return keysOf(settled(m_service.issues(scope)));
}
