#include "simulator/SiteSeed.h"

#include "simulator/PlainPicture.h"
#include "simulator/SiteSeedTables.h"

#include <QJsonArray>

#include <random>

using namespace Qt::StringLiterals;

namespace {

constexpr int daysBack = 200;

QJsonObject paragraph(const QString &text)
{
    const QJsonObject node{{u"type"_s, u"text"_s}, {u"text"_s, text}};
    return {{u"type"_s, u"paragraph"_s}, {u"content"_s, QJsonArray{node}}};
}

QJsonObject picture(const QString &mediaId)
{
    const QJsonObject media{
        {u"type"_s, u"media"_s},
        {u"attrs"_s,
         QJsonObject{{u"id"_s, mediaId}, {u"type"_s, u"file"_s}, {u"collection"_s, u""_s}}}};
    return {{u"type"_s, u"mediaSingle"_s},
            {u"attrs"_s, QJsonObject{{u"layout"_s, u"center"_s}}},
            {u"content"_s, QJsonArray{media}}};
}

QJsonObject document(const QJsonArray &content)
{
    return {{u"type"_s, u"doc"_s}, {u"version"_s, 1}, {u"content"_s, content}};
}

/// Generates issues one after the other from pseudo-random numbers that are the same in every run.
class Generator
{
public:
    Generator(Site &site, const QDateTime &now) : m_site(site), m_now(now) {}

    void addIssue()
    {
        const SiteProject &project = one(m_site.projects);
        SiteIssue issue{.id = m_site.newId(),
                        .key = m_site.newKey(project.key),
                        .projectKey = project.key,
                        .rank = below(1'000'000)};
        issue.typeId = kindIn(project, issue);
        issue.created = m_now.addSecs(-below(daysBack * 86'400));
        issue.reporter = person();
        issue.priorityId = one(m_site.priorities).id;
        issue.summary =
            u"%1 %2 %3"_s.arg(one(SiteSeedTables::actions()), one(SiteSeedTables::things()),
                              one(SiteSeedTables::circumstances()));
        dress(issue, project);
        live(issue, project);
        m_site.add(std::move(issue));
    }

private:
    int below(int limit) { return int(m_random() % unsigned(limit)); }
    bool happens(int percent) { return below(100) < percent; }

    template <typename T>
    const T &one(const QList<T> &of)
    {
        return of.at(below(int(of.size())));
    }

    /// An active user; the signed-in user is chosen more often than others.
    QString person() { return happens(15) ? m_site.me : m_site.users.at(below(11)).accountId; }

    /// The id of an issue type. A sub-task type is used only if the project has an issue that can be the parent.
    QString kindIn(const SiteProject &project, SiteIssue &issue)
    {
        const SiteIssueType &type = one(project.types);
        if (type.hierarchyLevel >= 0)
            return type.id;
        const SiteIssue *parent = m_site.issue(project.key + u"-1"_s);
        if (!parent || m_site.type(project, parent->typeId)->hierarchyLevel < 0)
            return project.types.first().id;
        issue.parentKey = parent->key;
        return type.id;
    }

    void dress(SiteIssue &issue, const SiteProject &project)
    {
        for (int count = below(3); count > 0; --count) {
            const QString label = one(SiteSeedTables::labels());
            if (!issue.labels.contains(label))
                issue.labels += label;
        }
        if (happens(30))
            issue.due = m_now.date().addDays(below(40) - 15);
        if (project.hasSprints && happens(60))
            issue.sprintId = one(m_site.sprints).id;
        if (happens(15))
            issue.viewed = m_now.addSecs(-below(5 * 86'400));
        QJsonArray content{paragraph(one(SiteSeedTables::sentences()))};
        if (happens(20)) {
            attach(issue);
            content += picture(issue.attachments.last().mediaId);
        }
        issue.description = document(content);
    }

    void attach(SiteIssue &issue)
    {
        const QString id = m_site.newId();
        issue.attachments += {.id = id,
                              .mediaId = u"media-"_s + id,
                              .filename = u"Capture d’écran %1.png"_s.arg(below(90) + 10),
                              .mimeType = u"image/png"_s,
                              .content = plainPicture(64, 40, m_random()),
                              .created = issue.created,
                              .author = issue.reporter};
    }

    /// Adds the changes since the issue's creation: assignments, transitions and comments.
    void live(SiteIssue &issue, const SiteProject &project)
    {
        issue.statusId = project.statuses.first().id;
        QDateTime at = issue.created;
        if (happens(85))
            assign(issue, at);
        for (int moves = below(5); moves > 0; --moves) {
            at = later(at);
            move(issue, project, at);
            if (happens(40))
                say(issue, project, at);
        }
        if (happens(10))
            assign(issue, later(at));
        issue.updated = issue.history.isEmpty() ? issue.created : issue.history.last().date;
    }

    /// A time between the given one and the current time.
    QDateTime later(const QDateTime &instant)
    {
        const qint64 left = std::max<qint64>(instant.secsTo(m_now), 2);
        return instant.addSecs(1 + qint64(m_random() % quint64(left - 1)) / 2);
    }

    void assign(SiteIssue &issue, const QDateTime &at)
    {
        const QString to = person();
        issue.history += {.date = at,
                          .author = person(),
                          .field = u"assignee"_s,
                          .from = issue.assignee,
                          .fromName = nameOf(issue.assignee),
                          .to = to,
                          .toName = nameOf(to)};
        issue.assignee = to;
    }

    void move(SiteIssue &issue, const SiteProject &project, const QDateTime &at)
    {
        const SiteStatus &before = *m_site.status(project, issue.statusId);
        const SiteStatus &after = one(project.statuses);
        if (before.id == after.id)
            return;
        issue.history += {.date = at,
                          .author = issue.assignee.isEmpty() ? issue.reporter : issue.assignee,
                          .field = u"status"_s,
                          .from = before.id,
                          .fromName = before.name,
                          .to = after.id,
                          .toName = after.name};
        issue.statusId = after.id;
    }

    void say(SiteIssue &issue, const SiteProject &project, const QDateTime &at)
    {
        const bool isServiceDesk = project.typeKey == "service_desk"_L1;
        issue.comments += {.id = m_site.newId(),
                           .author = isServiceDesk && happens(30) ? u"qm:client-1"_s : person(),
                           .body = document({paragraph(one(SiteSeedTables::sentences()))}),
                           .created = at,
                           .isInternal = isServiceDesk && happens(30),
                           .role = happens(5) ? u"Administrators"_s : QString()};
    }

    QString nameOf(const QString &accountId) const
    {
        const SiteUser *user = m_site.user(accountId);
        return user ? user->displayName : QString();
    }

    Site &m_site;
    QDateTime m_now;
    std::mt19937 m_random{20261029};
};

} // namespace

Site SiteSeed::company(int issues, const QDateTime &now)
{
    Site site;
    site.now = [now] { return now; };
    site.users = SiteSeedTables::users();
    site.priorities = SiteSeedTables::priorities();
    site.sprints = SiteSeedTables::sprints();
    site.projects = SiteSeedTables::projects();
    site.me = site.users.first().accountId;
    site.email = site.users.first().email;
    site.token = u"jeton-de-test"_s;
    site.personalToken = site.token;
    Generator generator(site, now);
    for (int count = 0; count < issues; ++count)
        generator.addIssue();
    return site;
}
