#pragma once

#include "platform/Clock.h"
#include "state/AppStore.h"
#include "state/composing/NewIssue.h"
#include "state/drafts/AbandonedTexts.h"

#include <QObject>
#include <QPointer>
#include <QtQml/qqmlregistration.h>

/// The fields of the sheet for a new issue, their defaults, and the creation. A failure is shown by the store in a toast;
/// the fields then stay as they are.
class NewIssueForm : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(AppStore *store READ store WRITE setStore NOTIFY storeChanged FINAL REQUIRED)
    /// The title.
    Q_PROPERTY(QString summary READ summary WRITE setSummary NOTIFY textChanged FINAL)
    /// The description, as Markdown.
    Q_PROPERTY(QString details READ details WRITE setDetails NOTIFY textChanged FINAL)
    /// After a creation the sheet stays open for the next issue.
    Q_PROPERTY(
        bool createsMore READ createsMore WRITE setCreatesMore NOTIFY createsMoreChanged FINAL)
    Q_PROPERTY(bool isSubmitting READ isSubmitting NOTIFY submittingChanged FINAL)
    Q_PROPERTY(bool canSubmit READ canSubmit NOTIFY canSubmitChanged FINAL)
    /// An abandoned text exists, and nothing has been typed yet.
    Q_PROPERTY(bool canResume READ canResume NOTIFY canResumeChanged FINAL)
    // The chosen values and their titles
    Q_PROPERTY(bool hasProject READ hasProject NOTIFY choicesChanged FINAL)
    Q_PROPERTY(Project project READ projectOrEmpty NOTIFY choicesChanged FINAL)
    Q_PROPERTY(QString projectTitle READ projectTitle NOTIFY choicesChanged FINAL)
    Q_PROPERTY(bool hasType READ hasType NOTIFY choicesChanged FINAL)
    Q_PROPERTY(IssueType type READ typeOrEmpty NOTIFY choicesChanged FINAL)
    Q_PROPERTY(QString typeTitle READ typeTitle NOTIFY choicesChanged FINAL)
    Q_PROPERTY(Model::PriorityLevel priorityLevel READ priorityLevel NOTIFY choicesChanged FINAL)
    Q_PROPERTY(QString priorityTitle READ priorityTitle NOTIFY choicesChanged FINAL)
    Q_PROPERTY(bool hasAssignee READ hasAssignee NOTIFY choicesChanged FINAL)
    Q_PROPERTY(JiraUser assignee READ assigneeOrEmpty NOTIFY choicesChanged FINAL)
    Q_PROPERTY(QString assigneeTitle READ assigneeTitle NOTIFY choicesChanged FINAL)
    Q_PROPERTY(QString labelsTitle READ labelsTitle NOTIFY choicesChanged FINAL)

public:
    using QObject::QObject;

    AppStore *store() const { return m_store; }
    void setStore(AppStore *store);

    /// The values entered so far. Without a choice of the user, the type is absent.
    const NewIssue &issue() const { return m_issue; }
    const QString &summary() const { return m_issue.summary; }
    void setSummary(const QString &summary);
    const QString &details() const { return m_issue.details; }
    void setDetails(const QString &details);
    bool createsMore() const { return m_createsMore; }
    void setCreatesMore(bool more);
    bool isSubmitting() const { return m_isSubmitting; }
    bool canSubmit() const;
    bool canResume() const;

    std::optional<Project> project() const;
    /// The types that the project offers.
    QList<IssueType> types() const;
    /// The chosen type, if the project offers it, else the default type.
    std::optional<IssueType> type() const;
    /// The people to whom the issue can be assigned.
    QList<JiraUser> assignables() const;

    /// Selects the default project. Call it once, when the sheet appears.
    Q_INVOKABLE void begin();
    /// Removes the type and the assignee, which belong to a project.
    void chooseProject(const QString &key);
    void chooseType(const QString &id);
    void choosePriority(const IssuePriority &priority);
    void chooseAssignee(const std::optional<JiraUser> &user);
    void toggleLabel(const QString &label);
    /// Creates the issue, once the types of the project are known: a site refuses an issue without a type. Has no effect
    /// without a title or while a creation is under way.
    Q_INVOKABLE void submit();
    /// The sheet is closed. A text that was not sent is kept.
    Q_INVOKABLE void abandon();
    /// Restores the abandoned text.
    Q_INVOKABLE void resume();

Q_SIGNALS:
    void storeChanged();
    void textChanged();
    void createsMoreChanged();
    void submittingChanged();
    void canSubmitChanged();
    void canResumeChanged();
    /// A choice, or what can be chosen, has changed.
    void choicesChanged();
    /// The issue was created, and the sheet should close.
    void finished();
    /// The issue was created, and the sheet is ready for the next one.
    void restarted();

private:
    bool hasProject() const { return project().has_value(); }
    Project projectOrEmpty() const { return project().value_or(Project()); }
    QString projectTitle() const;
    bool hasType() const { return type().has_value(); }
    IssueType typeOrEmpty() const { return type().value_or(IssueType()); }
    QString typeTitle() const;
    Model::PriorityLevel priorityLevel() const;
    QString priorityTitle() const;
    bool hasAssignee() const { return m_issue.assignee.has_value(); }
    JiraUser assigneeOrEmpty() const { return m_issue.assignee.value_or(JiraUser()); }
    QString assigneeTitle() const;
    QString labelsTitle() const;

    AbandonedText text() const;
    void setTexts(const QString &summary, const QString &details);
    void setSubmitting(bool submitting);
    IssueDraft draft() const;
    bool areTypesKnown() const;
    /// Creates the issue that waits for the types of its project.
    void followTypes();
    void createSubmitted();
    QCoro::Task<> create();
    void takeCreated();

    QPointer<AppStore> m_store;
    /// Where the text is kept when the sheet is closed without a creation.
    AbandonedPlace m_place;
    NewIssue m_issue;
    bool m_createsMore = false;
    bool m_isSubmitting = false;
    /// Whether the creation waits for the types of the project.
    bool m_isSubmittedEarly = false;
    Clock::TimerHandle m_typesLimit;
    bool m_isCreated = false;
};
