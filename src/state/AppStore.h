#pragma once

#include "async/Settled.h"
#include "model/DisplayProperties.h"
#include "platform/Clock.h"
#include "platform/Desktop.h"
#include "platform/Preferences.h"
#include "state/AppStoreFields.h"
#include "state/IssueDerivation.h"
#include "state/SelectionRules.h"
#include "state/models/IssueListModel.h"
#include "state/models/SidebarModel.h"
#include "state/models/ToastModel.h"

#include <functional>
#include <map>

/// The outside world, as the store needs it. All references outlive the store.
struct AppStoreContext
{
    Clock &clock;
    Preferences &preferences;
    Desktop &desktop;
    UserCalendar calendar;
    /// Opens a session on made-up data.
    std::function<std::shared_ptr<IssueService>()> makeDemo;
};

/// The state of the program: the active service, all lists and dictionaries that screens show, the preferences and the
/// toasts. Made once by the composition root; lives on the UI thread; the single writer of its fields. Screens bind to
/// its properties and call its operations, and never see the service.
///
/// Asynchronous operations never fail; a wait that outlives the store ends with `OwnerGone`.
class AppStore : public AppStoreFields
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the composition root")

    // Preferences
    Q_PROPERTY(Model::LayoutMode layout READ layout WRITE setLayout NOTIFY layoutChanged FINAL)
    Q_PROPERTY(
        Model::Grouping grouping READ grouping WRITE setGrouping NOTIFY groupingChanged FINAL)
    Q_PROPERTY(
        Model::Ordering ordering READ ordering WRITE setOrdering NOTIFY orderingChanged FINAL)
    Q_PROPERTY(bool showCompleted READ showCompleted WRITE setShowCompleted NOTIFY
                   showCompletedChanged FINAL)
    Q_PROPERTY(DisplayProperties display READ display NOTIFY displayChanged FINAL)
    Q_PROPERTY(
        QStringList favoriteProjects READ favoriteProjects NOTIFY favoriteProjectsChanged FINAL)
    Q_PROPERTY(Model::AppearanceMode appearance READ appearance WRITE setAppearance NOTIFY
                   appearanceChanged FINAL)
    Q_PROPERTY(Model::AccentChoice accentChoice READ accentChoice WRITE setAccentChoice NOTIFY
                   accentChoiceChanged FINAL)
    Q_PROPERTY(Model::RowDensity density READ density WRITE setDensity NOTIFY densityChanged FINAL)
    Q_PROPERTY(bool activityTeamWide READ activityTeamWide WRITE setActivityTeamWide NOTIFY
                   activityTeamWideChanged FINAL)
    Q_PROPERTY(bool isDark READ isDark NOTIFY isDarkChanged FINAL)
    Q_PROPERTY(bool prefersReducedMotion READ prefersReducedMotion NOTIFY
                   prefersReducedMotionChanged FINAL)
    // What is made from the fields
    Q_PROPERTY(QString scopeTitle READ scopeTitle NOTIFY scopeTitleChanged FINAL)
    Q_PROPERTY(int visibleCount READ visibleCount NOTIFY visibleCountChanged FINAL)
    Q_PROPERTY(QString subtitle READ subtitle NOTIFY subtitleChanged FINAL)
    Q_PROPERTY(QDateTime now READ now NOTIFY nowChanged FINAL)
    Q_PROPERTY(IssueListModel *issueList READ issueList CONSTANT FINAL)
    Q_PROPERTY(SidebarModel *sidebar READ sidebar CONSTANT FINAL)
    Q_PROPERTY(ToastModel *toasts READ toastModel CONSTANT FINAL)

public:
    explicit AppStore(AppStoreContext context, QObject *parent = nullptr);
    ~AppStore() override;

    // Session ---------------------------------------------------------------------------------------------------------
    /// Comes to a first phase; acts only the first time.
    QCoro::Task<> bootstrap();
    /// Leaves whatever session there is for one on made-up data.
    QCoro::Task<> startDemo();
    /// `startDemo` for a button, which does not wait.
    Q_INVOKABLE void openDemo();
    Q_INVOKABLE void signOut();

    // Loading ---------------------------------------------------------------------------------------------------------
    /// Shows another list: its last known state at once, and a fresh one when the service has answered.
    Q_INVOKABLE void select(const IssueScope &scope);
    /// Selects the scope of a sidebar row; a recap takes the stored switch for the team. Nothing is ignored.
    void setSidebarSelection(const std::optional<IssueScope> &scope);
    Q_INVOKABLE void selectInSidebar(const IssueScope &scope) { setSidebarSelection(scope); }
    /// Fetches the current list anew. Of overlapping reloads only the last one started writes.
    QCoro::Task<> reload();
    /// `reload` for a button, which does not wait.
    Q_INVOKABLE void refresh();
    QCoro::Task<> refreshMyIssues();
    /// Fetches all of an opened issue: the record, its comments and its transitions.
    QCoro::Task<> loadDetails(QString key);
    /// Fetches a project's statuses, assignable users and types, once in a session.
    QCoro::Task<> loadProjectMeta(QString key);
    /// Issues that the service finds; none on any failure.
    QCoro::Task<IssueList> searchRemote(QString text, std::stop_token stop = {});
    /// The best known record of the issue.
    std::optional<SharedIssue> issue(const QString &key) const;
    std::optional<Project> project(const QString &key) const;
    /// Every user met so far, by id; outlives sessions.
    const QHash<QString, JiraUser> &knownUsers() const { return m_knownUsers; }

    // Derived lists: each computed at most once per change of what it depends on ---------------------------------------
    const IssueList &visibleIssues() const { return derivation().visibleIssues(); }
    const QList<IssueGroup> &groups() const { return derivation().groups(); }
    const QList<IssueGroup> &boardColumns() const { return derivation().boardColumns(); }
    /// The keys in display order: the path of the arrow keys.
    const QStringList &flatVisibleKeys() const { return derivation().flatVisibleKeys(); }
    /// All of the above and what the filter menus offer.
    const IssueDerivation &derivation() const;
    const QString &scopeTitle() const { return *m_scopeTitle; }
    int visibleCount() const { return *m_visibleCount; }
    /// "13 tickets", and whether a refresh is under way.
    const QString &subtitle() const { return *m_subtitle; }
    /// The present to the minute, for relative dates.
    const QDateTime &now() const { return *m_now; }
    IssueListModel *issueList() { return &m_issueList; }
    SidebarModel *sidebar() { return &m_sidebar; }
    ToastModel *toastModel() { return &m_toastModel; }

    // Selection -------------------------------------------------------------------------------------------------------
    Q_INVOKABLE void toggleGroup(const QString &id);
    /// Moves the focus by `delta` rows, without wrapping; an open inspector follows.
    void moveFocus(int delta, FocusMove move = FocusMove::Plain);

    // Preferences, each written to the disk at its change ---------------------------------------------------------------
    LayoutMode layout() const { return *m_layout; }
    void setLayout(LayoutMode layout);
    Grouping grouping() const { return *m_grouping; }
    void setGrouping(Grouping grouping);
    Ordering ordering() const { return *m_ordering; }
    void setOrdering(Ordering ordering);
    bool showCompleted() const { return *m_showCompleted; }
    void setShowCompleted(bool show);
    const DisplayProperties &display() const { return *m_display; }
    void setDisplay(const DisplayProperties &display);
    const QStringList &favoriteProjects() const { return *m_favoriteProjects; }
    Q_INVOKABLE void toggleFavorite(const QString &projectKey);
    AppearanceMode appearance() const { return *m_appearance; }
    void setAppearance(AppearanceMode mode);
    /// Goes on to the next appearance and says so.
    Q_INVOKABLE void cycleAppearance();
    AccentChoice accentChoice() const { return *m_accentChoice; }
    void setAccentChoice(AccentChoice choice);
    RowDensity density() const { return *m_density; }
    void setDensity(RowDensity density);
    bool activityTeamWide() const { return *m_activityTeamWide; }
    void setActivityTeamWide(bool teamWide);
    /// The appearance in force: the user's choice, or the desktop's where the user follows it.
    bool isDark() const { return *m_isDark; }
    bool prefersReducedMotion() const { return *m_prefersReducedMotion; }

    // Toasts ----------------------------------------------------------------------------------------------------------
    void toast(const QString &message, const QString &symbol, ToastKind kind = ToastKind::Notice);
    Q_INVOKABLE void dismissToast(const QUuid &id);

Q_SIGNALS:
    void layoutChanged();
    void groupingChanged();
    void orderingChanged();
    void showCompletedChanged();
    void displayChanged();
    void favoriteProjectsChanged();
    void appearanceChanged();
    void accentChoiceChanged();
    void densityChanged();
    void activityTeamWideChanged();
    void isDarkChanged();
    void prefersReducedMotionChanged();
    void scopeTitleChanged();
    void visibleCountChanged();
    void subtitleChanged();
    void nowChanged();

private:
    enum class SessionKind { Real, Demo };
    template <typename T>
    using Preference = Observed<AppStore, T>;

    // AppStoreSession.cpp
    QCoro::Task<> activate(std::shared_ptr<IssueService> service, SessionKind kind,
                           std::optional<JiraUser> knownUser);
    QCoro::Task<> fetchAccount(std::shared_ptr<IssueService> service,
                               std::optional<JiraUser> knownUser);
    QCoro::Task<> fetchSite(std::shared_ptr<IssueService> service);
    void open(std::shared_ptr<IssueService> service, SessionKind kind);
    void resetData();
    void startAutoRefresh();
    QCoro::Task<> refreshInBackground();
    // AppStoreLoading.cpp
    void takeReloaded(const IssueScope &scope, const Settled<IssueList> &outcome);
    void startProjectMeta();
    void mergeIntoDetails(const IssueList &fresh);
    // AppStoreDetails.cpp
    void takeDetails(const QString &key, const Issue &issue);
    void takeDetailsFailure(const QString &key, const TaskFailure &failure);
    void takeAssignables(const QString &key, const QList<JiraUser> &users);
    // AppStoreSelection.cpp
    void setSelection(const Selection &selection);
    // AppStorePreferences.cpp
    void readPreferences();
    void refreshAppearance();
    // AppStoreDerived.cpp
    void flush(unsigned what) override;
    IssueDerivationInputs derivationInputs() const;
    void feedMarks();
    void feedSidebar();
    void refreshCaptions();
    void startMinutes();

    AppStoreContext m_context;
    bool m_didBootstrap = false;
    /// Grows with each reload and each end of a session; tells a late list from a wanted one.
    int m_generation = 0;
    QHash<IssueScope, IssueList> m_scopeCache;
    QSet<QString> m_loadedMeta;
    QHash<QString, JiraUser> m_knownUsers;
    Clock::TimerHandle m_refreshTimer;
    Clock::TimerHandle m_minuteTimer;
    std::map<QUuid, Clock::TimerHandle> m_toastTimers;

    Preference<LayoutMode> m_layout{this, &AppStore::layoutChanged, List};
    Preference<Grouping> m_grouping{this, &AppStore::groupingChanged, List};
    Preference<Ordering> m_ordering{this, &AppStore::orderingChanged, List};
    Preference<bool> m_showCompleted{this, &AppStore::showCompletedChanged, List};
    Preference<DisplayProperties> m_display{this, &AppStore::displayChanged};
    Preference<QStringList> m_favoriteProjects{this, &AppStore::favoriteProjectsChanged, Sidebar};
    Preference<AppearanceMode> m_appearance{this, &AppStore::appearanceChanged};
    Preference<AccentChoice> m_accentChoice{this, &AppStore::accentChoiceChanged};
    Preference<RowDensity> m_density{this, &AppStore::densityChanged};
    Preference<bool> m_activityTeamWide{this, &AppStore::activityTeamWideChanged};
    Observed<AppStore, bool> m_isDark{this, &AppStore::isDarkChanged};
    Observed<AppStore, bool> m_prefersReducedMotion{this, &AppStore::prefersReducedMotionChanged};

    /// Follows the fields when it is read and when a batch ends.
    mutable IssueDerivation m_derivation;
    Observed<AppStore, QString> m_scopeTitle{this, &AppStore::scopeTitleChanged};
    Observed<AppStore, int> m_visibleCount{this, &AppStore::visibleCountChanged};
    Observed<AppStore, QString> m_subtitle{this, &AppStore::subtitleChanged};
    Observed<AppStore, QDateTime> m_now{this, &AppStore::nowChanged, Time, m_context.clock.now()};
    IssueListModel m_issueList{m_context.calendar, *m_now};
    SidebarModel m_sidebar;
    ToastModel m_toastModel;
};
