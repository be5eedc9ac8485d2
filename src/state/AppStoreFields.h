#pragma once

#include "commands/PaletteMode.h"
#include "derivation/IssueFilters.h"
#include "model/Comment.h"
#include "model/IssueScope.h"
#include "state/Observed.h"
#include "state/Session.h"
#include "state/Toast.h"
#include "state/Uploads.h"
#include "state/edits/IndexedIssues.h"

#include <QObject>
#include <QSet>
#include <QtQml/qqmlregistration.h>

#include <memory>

/// The fields of the store whose lifetime is a session or the process, with the properties and signals by which screens
/// observe them. Only `AppStore` writes them. A field that may be absent is an optional in C++. In QML it reads as
/// empty; if an empty value has another meaning, there is also a `has…` property.
class AppStoreFields : public QObject, public Batched
{
    Q_OBJECT
    QML_ANONYMOUS

    // Session
    Q_PROPERTY(AppStoreFields::Phase phase READ phase NOTIFY phaseChanged FINAL)
    Q_PROPERTY(bool isDemo READ isDemo NOTIFY sessionChanged FINAL)
    Q_PROPERTY(bool hasMe READ hasMe NOTIFY meChanged FINAL)
    Q_PROPERTY(JiraUser me READ meOrEmpty NOTIFY meChanged FINAL)
    Q_PROPERTY(QList<Project> projects READ projects NOTIFY projectsChanged FINAL)
    Q_PROPERTY(QList<IssuePriority> priorities READ priorities NOTIFY prioritiesChanged FINAL)
    Q_PROPERTY(QString siteName READ siteName NOTIFY sessionChanged FINAL)
    Q_PROPERTY(QString siteShortName READ siteShortName NOTIFY sessionChanged FINAL)
    Q_PROPERTY(
        bool hasCredentialsIssue READ hasCredentialsIssue NOTIFY credentialsIssueChanged FINAL)
    Q_PROPERTY(
        QString credentialsIssue READ credentialsIssueOrEmpty NOTIFY credentialsIssueChanged FINAL)
    // Loading
    Q_PROPERTY(IssueScope scope READ scope NOTIFY scopeChanged FINAL)
    Q_PROPERTY(IssueScope sidebarSelection READ sidebarSelection NOTIFY scopeChanged FINAL)
    Q_PROPERTY(IssueList issues READ issues NOTIFY issuesChanged FINAL)
    Q_PROPERTY(bool isLoading READ isLoading NOTIFY isLoadingChanged FINAL)
    Q_PROPERTY(bool hasLoadError READ hasLoadError NOTIFY loadErrorChanged FINAL)
    Q_PROPERTY(QString loadError READ loadErrorOrEmpty NOTIFY loadErrorChanged FINAL)
    Q_PROPERTY(AppStoreFields::IssueMap details READ details NOTIFY detailsChanged FINAL)
    Q_PROPERTY(
        AppStoreFields::TextMap detailErrors READ detailErrors NOTIFY detailErrorsChanged FINAL)
    Q_PROPERTY(AppStoreFields::CommentMap comments READ comments NOTIFY commentsChanged FINAL)
    Q_PROPERTY(
        AppStoreFields::TransitionMap transitions READ transitions NOTIFY transitionsChanged FINAL)
    Q_PROPERTY(AppStoreFields::StatusMap projectStatuses READ projectStatuses NOTIFY
                   projectStatusesChanged FINAL)
    Q_PROPERTY(AppStoreFields::UserMap assignables READ assignables NOTIFY assignablesChanged FINAL)
    Q_PROPERTY(AppStoreFields::ProjectMap projectDetails READ projectDetails NOTIFY
                   projectDetailsChanged FINAL)
    Q_PROPERTY(IssueList myOpenIssues READ myOpenIssues NOTIFY myOpenIssuesChanged FINAL)
    Q_PROPERTY(int myOpenCount READ myOpenCount NOTIFY myOpenIssuesChanged FINAL)
    Q_PROPERTY(AppStoreFields::CountMap uploading READ uploading NOTIFY uploadingChanged FINAL)
    // Selection and search
    Q_PROPERTY(QString focusedKey READ focusedKeyOrEmpty NOTIFY focusedKeyChanged FINAL)
    Q_PROPERTY(QSet<QString> checked READ checked NOTIFY checkedChanged FINAL)
    Q_PROPERTY(bool isSelecting READ isSelecting NOTIFY checkedChanged FINAL)
    Q_PROPERTY(int checkedCount READ checkedCount NOTIFY checkedChanged FINAL)
    Q_PROPERTY(QString inspectorKey READ inspectorKeyOrEmpty NOTIFY inspectorKeyChanged FINAL)
    Q_PROPERTY(
        QSet<QString> collapsedGroups READ collapsedGroups NOTIFY collapsedGroupsChanged FINAL)
    Q_PROPERTY(
        QString filterText READ filterText WRITE setFilterText NOTIFY filterTextChanged FINAL)
    Q_PROPERTY(IssueFilters filters READ filters NOTIFY filtersChanged FINAL)
    Q_PROPERTY(bool isCreating READ isCreating WRITE setIsCreating NOTIFY isCreatingChanged FINAL)
    // Captions of the list, made from other fields
    Q_PROPERTY(QString scopeTitle READ scopeTitle NOTIFY scopeTitleChanged FINAL)
    Q_PROPERTY(int visibleCount READ visibleCount NOTIFY visibleCountChanged FINAL)
    Q_PROPERTY(QString subtitle READ subtitle NOTIFY subtitleChanged FINAL)
    Q_PROPERTY(QString listAge READ listAge NOTIFY listAgeChanged FINAL)
    Q_PROPERTY(QString countHint READ countHint NOTIFY countHintChanged FINAL)

public:
    enum class Phase { Launching, SignedOut, Ready };
    Q_ENUM(Phase)

    /// By issue key.
    using IssueMap = QHash<QString, SharedIssue>;
    using TextMap = QHash<QString, QString>;
    using CommentMap = QHash<QString, QList<Comment>>;
    using TransitionMap = QHash<QString, QList<WorkflowTransition>>;
    using CountMap = QHash<QString, int>;
    /// By project key.
    using StatusMap = QHash<QString, QList<IssueStatus>>;
    using UserMap = QHash<QString, QList<JiraUser>>;
    using ProjectMap = QHash<QString, Project>;

    Phase phase() const { return *m_phase; }
    /// Whether the session is on made-up data; false without a session.
    bool isDemo() const { return *m_session && (*m_session)->isDemo(); }
    const std::optional<JiraUser> &me() const { return *m_me; }
    const QList<Project> &projects() const { return *m_projects; }
    const QList<IssuePriority> &priorities() const { return *m_priorities; }
    /// Why saved credentials could not be read.
    const std::optional<QString> &credentialsIssue() const { return *m_credentialsIssue; }
    /// The name of the session's site; empty without a session.
    QString siteName() const;
    /// The same without the suffix that all Jira Cloud sites share.
    QString siteShortName() const;

    const IssueScope &scope() const { return *m_scope; }
    /// The scope as the rows of the sidebar have it: a recap is compared without its switch for the team.
    IssueScope sidebarSelection() const;
    const IssueList &issues() const { return *m_issues; }
    bool isLoading() const { return *m_isLoading; }
    const std::optional<QString> &loadError() const { return *m_loadError; }
    /// The records of opened issues, and the errors of those that could not be fetched.
    const IssueMap &details() const { return *m_details; }
    const TextMap &detailErrors() const { return *m_detailErrors; }
    const CommentMap &comments() const { return *m_comments; }
    const TransitionMap &transitions() const { return *m_transitions; }
    const StatusMap &projectStatuses() const { return *m_projectStatuses; }
    const UserMap &assignables() const { return *m_assignables; }
    const ProjectMap &projectDetails() const { return *m_projectDetails; }
    /// The user's open issues, the most urgent first.
    const IssueList &myOpenIssues() const { return m_myOpenIssues->list(); }
    int myOpenCount() const { return int(m_myOpenIssues->list().size()); }

    /// The number of files that are being uploaded, by issue; 0 once they are uploaded.
    const CountMap &uploading() const { return *m_uploading; }
    /// The same uploads with their progress.
    Uploads &uploads() { return m_uploads; }

    const std::optional<QString> &focusedKey() const { return *m_focusedKey; }
    void setFocusedKey(const std::optional<QString> &key) { m_focusedKey.set(key); }
    const QSet<QString> &checked() const { return *m_checked; }
    void setChecked(const QSet<QString> &keys) { m_checked.set(keys); }
    bool isSelecting() const { return !m_checked->isEmpty(); }
    int checkedCount() const { return int(m_checked->size()); }
    const std::optional<QString> &inspectorKey() const { return *m_inspectorKey; }
    void setInspectorKey(const std::optional<QString> &key) { m_inspectorKey.set(key); }
    const QSet<QString> &collapsedGroups() const { return *m_collapsedGroups; }
    const QString &filterText() const { return *m_filterText; }
    void setFilterText(const QString &text) { m_filterText.set(text); }
    const IssueFilters &filters() const { return *m_filters; }
    void setFilters(const IssueFilters &filters) { m_filters.set(filters); }

    /// The open palette.
    const std::optional<PaletteMode> &palette() const { return *m_palette; }
    void setPalette(const std::optional<PaletteMode> &palette) { m_palette.set(palette); }
    Q_INVOKABLE void closePalette() { m_palette.set(std::nullopt); }
    /// The create screen is open.
    bool isCreating() const { return *m_isCreating; }
    void setIsCreating(bool creating) { m_isCreating.set(creating); }
    /// The project for which the create screen was requested.
    const std::optional<QString> &createProjectKey() const { return *m_createProjectKey; }

    const QString &scopeTitle() const { return *m_scopeTitle; }
    int visibleCount() const { return *m_visibleCount; }
    /// "13 tickets", and whether a refresh is running.
    const QString &subtitle() const { return *m_subtitle; }
    /// "il y a 12 min": when the shown list was fetched, if refreshing it fails; empty otherwise. The reason is
    /// `loadError`.
    const QString &listAge() const { return *m_listAge; }
    /// A hint that the site returned only a part of a long list; empty otherwise.
    const QString &countHint() const { return *m_countHint; }

    /// The toasts that are shown, oldest first.
    const QList<Toast> &toasts() const { return *m_toasts; }

Q_SIGNALS:
    void phaseChanged();
    void sessionChanged();
    void meChanged();
    void projectsChanged();
    void prioritiesChanged();
    void credentialsIssueChanged();
    void scopeChanged();
    void issuesChanged();
    void isLoadingChanged();
    void loadErrorChanged();
    void detailsChanged();
    void detailErrorsChanged();
    void commentsChanged();
    void transitionsChanged();
    void projectStatusesChanged();
    void assignablesChanged();
    void projectDetailsChanged();
    void myOpenIssuesChanged();
    void uploadingChanged();
    void focusedKeyChanged();
    void checkedChanged();
    void inspectorKeyChanged();
    void collapsedGroupsChanged();
    void filterTextChanged();
    void filtersChanged();
    void paletteChanged();
    void isCreatingChanged();
    void createProjectKeyChanged();
    void toastsChanged();
    void scopeTitleChanged();
    void visibleCountChanged();
    void subtitleChanged();
    void listAgeChanged();
    void countHintChanged();

protected:
    template <typename T>
    using Field = Observed<AppStoreFields, T>;
    using This = AppStoreFields;
    /// The values that are computed from the fields; flags. Each field names the ones that depend on it.
    enum Shown : unsigned {
        List = 1,
        Marks = 2,
        Sidebar = 4,
        Captions = 8,
        ToastRows = 16,
        Time = 32,
        People = 64
    };

    using QObject::QObject;

    Field<Phase> m_phase{this, &This::phaseChanged};
    /// The current session. The store is its only owner, so that it ends when it is replaced.
    Field<std::shared_ptr<Session>> m_session{this, &This::sessionChanged};
    Field<std::optional<JiraUser>> m_me{this, &This::meChanged, List};
    Field<QList<Project>> m_projects{this, &This::projectsChanged, List | Sidebar};
    Field<QList<IssuePriority>> m_priorities{this, &This::prioritiesChanged};
    Field<std::optional<QString>> m_credentialsIssue{this, &This::credentialsIssueChanged};
    Field<IssueScope> m_scope{this, &This::scopeChanged, List | Sidebar};
    Field<IssueList> m_issues{this, &This::issuesChanged, List};
    Field<bool> m_isLoading{this, &This::isLoadingChanged, Captions};
    Field<std::optional<QString>> m_loadError{this, &This::loadErrorChanged, Sidebar | Captions};
    Field<IssueMap> m_details{this, &This::detailsChanged};
    Field<TextMap> m_detailErrors{this, &This::detailErrorsChanged};
    Field<CommentMap> m_comments{this, &This::commentsChanged};
    Field<TransitionMap> m_transitions{this, &This::transitionsChanged};
    Field<StatusMap> m_projectStatuses{this, &This::projectStatusesChanged, List};
    Field<UserMap> m_assignables{this, &This::assignablesChanged, People};
    Field<ProjectMap> m_projectDetails{this, &This::projectDetailsChanged, List};
    Field<IndexedIssues> m_myOpenIssues{this, &This::myOpenIssuesChanged, Sidebar};
    Field<CountMap> m_uploading{this, &This::uploadingChanged};
    Uploads m_uploads;
    Field<std::optional<QString>> m_focusedKey{this, &This::focusedKeyChanged, Marks};
    Field<QSet<QString>> m_checked{this, &This::checkedChanged, Marks};
    Field<std::optional<QString>> m_inspectorKey{this, &This::inspectorKeyChanged, Marks};
    Field<QSet<QString>> m_collapsedGroups{this, &This::collapsedGroupsChanged, List};
    Field<QString> m_filterText{this, &This::filterTextChanged, List};
    Field<IssueFilters> m_filters{this, &This::filtersChanged, List};
    Field<std::optional<PaletteMode>> m_palette{this, &This::paletteChanged};
    Field<bool> m_isCreating{this, &This::isCreatingChanged};
    Field<std::optional<QString>> m_createProjectKey{this, &This::createProjectKeyChanged};
    Field<QList<Toast>> m_toasts{this, &This::toastsChanged, ToastRows};
    Field<QString> m_scopeTitle{this, &This::scopeTitleChanged};
    Field<int> m_visibleCount{this, &This::visibleCountChanged};
    Field<QString> m_subtitle{this, &This::subtitleChanged};
    Field<QString> m_listAge{this, &This::listAgeChanged};
    Field<QString> m_countHint{this, &This::countHintChanged};

private:
    bool hasMe() const { return m_me->has_value(); }
    JiraUser meOrEmpty() const { return m_me->value_or(JiraUser()); }
    bool hasCredentialsIssue() const { return m_credentialsIssue->has_value(); }
    QString credentialsIssueOrEmpty() const { return m_credentialsIssue->value_or(QString()); }
    bool hasLoadError() const { return m_loadError->has_value(); }
    QString loadErrorOrEmpty() const { return m_loadError->value_or(QString()); }
    QString focusedKeyOrEmpty() const { return m_focusedKey->value_or(QString()); }
    QString inspectorKeyOrEmpty() const { return m_inspectorKey->value_or(QString()); }
};
