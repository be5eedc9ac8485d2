#include "screens/create/NewIssueForm.h"

#include "async/Spawn.h"
#include "async/WhileAlive.h"

#include <algorithm>
#include <chrono>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

/// The types may never arrive. The site then says what it makes of an issue without a type.
constexpr std::chrono::seconds LongestWaitForTypes{10};

/// Creates the issue even if the form goes in the meantime, and then forgets the text that was kept when it went.
QCoro::Task<bool> created(QPointer<AppStore> store, IssueDraft draft, AbandonedPlace place,
                          AbandonedText sent)
{
    const auto key = co_await store->create(draft);
    if (key)
        place.forget(sent);
    co_return key.has_value();
}

} // namespace

void NewIssueForm::setStore(AppStore *store)
{
    if (m_store == store)
        return;
    if (m_store) {
        m_store->disconnect(this);
        AbandonedTexts::of(*m_store).disconnect(this);
    }
    m_store = store;
    m_place = {};
    if (m_store) {
        for (const auto change :
             {&AppStoreFields::projectsChanged, &AppStoreFields::projectDetailsChanged,
              &AppStoreFields::assignablesChanged, &AppStoreFields::prioritiesChanged,
              &AppStoreFields::issuesChanged, &AppStoreFields::meChanged})
            connect(m_store, change, this, &NewIssueForm::choicesChanged);
        connect(m_store, &AppStore::calendarChanged, this, &NewIssueForm::choicesChanged);
        connect(m_store, &AppStoreFields::projectDetailsChanged, this, &NewIssueForm::followTypes);
        auto &texts = AbandonedTexts::of(*m_store);
        m_place = texts.place(AbandonedTexts::Kind::NewIssue);
        connect(&texts, &AbandonedTexts::changed, this, &NewIssueForm::canResumeChanged);
    }
    Q_EMIT storeChanged();
    Q_EMIT choicesChanged();
    Q_EMIT canResumeChanged();
}

// The text ------------------------------------------------------------------------------------------------------------

void NewIssueForm::setSummary(const QString &summary)
{
    setTexts(summary, m_issue.details);
}

void NewIssueForm::setDetails(const QString &details)
{
    setTexts(m_issue.summary, details);
}

void NewIssueForm::setTexts(const QString &summary, const QString &details)
{
    if (m_issue.summary == summary && m_issue.details == details)
        return;
    const bool couldSubmit = canSubmit();
    m_issue.summary = summary;
    m_issue.details = details;
    Q_EMIT textChanged();
    Q_EMIT canResumeChanged();
    if (canSubmit() != couldSubmit)
        Q_EMIT canSubmitChanged();
}

AbandonedText NewIssueForm::text() const
{
    return {.title = m_issue.summary, .body = m_issue.details};
}

void NewIssueForm::abandon()
{
    if (!m_isCreated)
        m_place.keep(text());
}

bool NewIssueForm::canResume() const
{
    return m_issue.summary.isEmpty() && m_issue.details.isEmpty() && m_place.text();
}

void NewIssueForm::resume()
{
    if (!canResume())
        return;
    const AbandonedText abandoned = *m_place.text();
    m_place.forget();
    setTexts(abandoned.title, abandoned.body);
}

// The choices ---------------------------------------------------------------------------------------------------------

void NewIssueForm::begin()
{
    if (m_store && m_issue.projectKey.isEmpty())
        chooseProject(m_store->defaultProjectKey().value_or(QString()));
}

void NewIssueForm::chooseProject(const QString &key)
{
    if (m_issue.projectKey == key)
        return;
    m_issue.projectKey = key;
    m_issue.typeID.reset();
    m_issue.assignee.reset();
    Q_EMIT choicesChanged();
    Q_EMIT canSubmitChanged();
    if (m_store)
        spawn(m_store->loadProjectMeta(key));
}

void NewIssueForm::chooseType(const QString &id)
{
    m_issue.typeID = id;
    Q_EMIT choicesChanged();
}

void NewIssueForm::choosePriority(const IssuePriority &priority)
{
    m_issue.priority = priority;
    Q_EMIT choicesChanged();
}

void NewIssueForm::chooseAssignee(const std::optional<JiraUser> &user)
{
    m_issue.assignee = user;
    Q_EMIT choicesChanged();
}

void NewIssueForm::toggleLabel(const QString &label)
{
    if (m_issue.labels.removeAll(label) == 0)
        m_issue.labels.append(label);
    Q_EMIT choicesChanged();
}

std::optional<Project> NewIssueForm::project() const
{
    return m_store ? m_store->project(m_issue.projectKey) : std::nullopt;
}

QList<IssueType> NewIssueForm::types() const
{
    if (!m_store)
        return {};
    const auto details = m_store->projectDetails().constFind(m_issue.projectKey);
    const bool isDetailed = details != m_store->projectDetails().constEnd();
    return creatableTypes(isDetailed ? std::optional(*details) : std::nullopt, project());
}

std::optional<IssueType> NewIssueForm::type() const
{
    const auto offered = types();
    const auto chosen = std::ranges::find_if(
        offered, [&](const IssueType &each) { return each.id == m_issue.typeID; });
    return chosen == offered.end() ? defaultType(offered) : std::optional(*chosen);
}

QList<JiraUser> NewIssueForm::assignables() const
{
    if (!m_store)
        return {};
    const auto ofProject = m_store->assignables().value(m_issue.projectKey);
    return ofProject.isEmpty() ? m_store->derivation().menus().assignees : ofProject;
}

QString NewIssueForm::projectTitle() const
{
    return hasProject() ? projectOrEmpty().name : u"Projet"_s;
}

QString NewIssueForm::typeTitle() const
{
    return hasType() ? typeOrEmpty().name : u"Type"_s;
}

Model::PriorityLevel NewIssueForm::priorityLevel() const
{
    return m_issue.priority ? m_issue.priority->level() : PriorityLevel::None;
}

QString NewIssueForm::priorityTitle() const
{
    return m_issue.priority ? m_issue.priority->displayName() : u"Priorité"_s;
}

QString NewIssueForm::assigneeTitle() const
{
    return m_issue.assignee ? m_issue.assignee->name : u"Non assigné"_s;
}

QString NewIssueForm::labelsTitle() const
{
    return m_issue.labels.isEmpty() ? u"Étiquettes"_s : m_issue.labels.join(u", "_s);
}

// The creation --------------------------------------------------------------------------------------------------------

bool NewIssueForm::canSubmit() const
{
    return m_store && !m_isSubmitting && canCreate(m_issue);
}

void NewIssueForm::setCreatesMore(bool more)
{
    if (std::exchange(m_createsMore, more) != more)
        Q_EMIT createsMoreChanged();
}

void NewIssueForm::setSubmitting(bool submitting)
{
    if (std::exchange(m_isSubmitting, submitting) == submitting)
        return;
    Q_EMIT submittingChanged();
    Q_EMIT canSubmitChanged();
}

IssueDraft NewIssueForm::draft() const
{
    NewIssue issue = m_issue;
    if (const auto sent = type())
        issue.typeID = sent->id;
    else
        issue.typeID.reset();
    return issueDraft(issue, m_store->mentionCandidates({}, issue.projectKey) + assignables());
}

void NewIssueForm::submit()
{
    if (!canSubmit())
        return;
    setSubmitting(true);
    if (areTypesKnown()) {
        spawn(create());
        return;
    }
    m_isSubmittedEarly = true;
    m_typesLimit = m_store->clock().after(LongestWaitForTypes, [this] {
        if (m_isSubmittedEarly)
            createSubmitted();
    });
}

bool NewIssueForm::areTypesKnown() const
{
    return !types().isEmpty() || m_store->projectDetails().contains(m_issue.projectKey);
}

void NewIssueForm::followTypes()
{
    if (m_isSubmittedEarly && m_store && areTypesKnown())
        createSubmitted();
}

void NewIssueForm::createSubmitted()
{
    m_isSubmittedEarly = false;
    spawn(create());
}

QCoro::Task<> NewIssueForm::create()
{
    const bool isCreated = co_await whileAlive(this, created(m_store, draft(), m_place, text()));
    setSubmitting(false);
    if (isCreated)
        takeCreated();
}

void NewIssueForm::takeCreated()
{
    if (m_createsMore) {
        setTexts({}, {});
        Q_EMIT restarted();
        return;
    }
    m_isCreated = true;
    Q_EMIT finished();
}
