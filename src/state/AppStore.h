#pragma once

#include "async/Newest.h"
#include "async/Settled.h"
#include "commands/Command.h"
#include "commands/CopiedText.h"
#include "commands/KeyPress.h"
#include "commands/OptionBuilders.h"
#include "commands/SelectionRules.h"
#include "commands/ShortcutKey.h"
#include "derivation/IssueDerivation.h"
#include "state/AppStoreContext.h"
#include "state/AppStorePreferences.h"
#include "state/PendingWrites.h"
#include "state/RecapMemos.h"
#include "state/edits/CommentAudience.h"
#include "state/edits/IssueCopies.h"
#include "state/edits/OptimisticEdit.h"
#include "state/models/BoardModel.h"
#include "state/models/IssueListModel.h"
#include "state/models/SidebarModel.h"
#include "state/models/ToastModel.h"
#include "state/recap/ActivityBadge.h"
#include "state/recap/ActivityHeaderData.h"
#include "state/recap/ActivityNavigation.h"

#include <array>
#include <map>
#include <stop_token>

/// The state of the program: the active service, all lists and dictionaries that screens show, the preferences and the
/// toasts. Created once by the composition root; used on the UI thread only; the only writer of its fields. Screens
/// bind to its properties and call its operations, but never access the service.
///
/// Asynchronous operations never fail. They belong to the session in which they begin: when it ends, they end without a
/// result and change nothing. If the store is destroyed, pending ones end with `OwnerGone`.
class AppStore : public AppStorePreferences
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the composition root")
    // Enumerators of different enumerations have the same names.
    Q_CLASSINFO("RegisterEnumClassesUnscoped", "false")

    // Selection
    Q_PROPERTY(bool showInspector READ showInspector WRITE setShowInspector NOTIFY
                   inspectorKeyChanged FINAL)
    // Values computed from the fields
    Q_PROPERTY(QDateTime now READ now NOTIFY nowChanged FINAL)
    Q_PROPERTY(
        ActivityHeaderData activityHeader READ activityHeader NOTIFY activityHeaderChanged FINAL)
    Q_PROPERTY(IssueListModel *issueList READ issueList CONSTANT FINAL)
    Q_PROPERTY(BoardModel *board READ board CONSTANT FINAL)
    Q_PROPERTY(SidebarModel *sidebar READ sidebar CONSTANT FINAL)
    Q_PROPERTY(ToastModel *toasts READ toastModel CONSTANT FINAL)
    /// The number of issues by which Page Up and Page Down move the focus, at least 1. The visible layout sets it.
    Q_PROPERTY(int pageLength MEMBER m_pageLength WRITE setPageLength FINAL)

public:
    explicit AppStore(AppStoreContext context, QObject *parent = nullptr);
    ~AppStore() override;

    // Session ---------------------------------------------------------------------------------------------------------
    /// Starts the program until its first phase. Only the first call has an effect.
    QCoro::Task<> bootstrap();
    /// Replaces the current session, if any, by one on made-up data.
    QCoro::Task<> startDemo();
    /// `startDemo` for a button, which does not wait.
    Q_INVOKABLE void openDemo();
    /// Deletes the token, and goes back to the first screen.
    Q_INVOKABLE void signOut();
    /// Whether `bootstrap` will open the demo, which needs no credentials.
    bool startsWithDemo() const;
    /// Opens the saved session, if there is one and the system gives access to it. Has no effect if a session began or
    /// ended in the meantime.
    QCoro::Task<> restoreSavedSession();
    /// `restoreSavedSession` for a button, which does not wait.
    Q_INVOKABLE void retrySavedSession();
    /// Signs in: verifies the credentials, saves them and replaces the current session. Fails with the message to show
    /// beside the form; then nothing has changed.
    QCoro::Task<> connect(QString site, QString email, QString token);
    using QObject::connect;
    /// The initial values of the form: the site and the e-mail of the last sign-in.
    SignIn lastSignIn() const { return m_context.sessions.lastSignIn(); }

    /// The writes that are not answered yet, including those of sessions that have ended.
    const PendingWrites &writes() const { return m_writes; }

    // Loading ---------------------------------------------------------------------------------------------------------
    /// Shows another list: its last known state at once, and a fresh one when the service has answered.
    Q_INVOKABLE void select(const IssueScope &scope);
    /// Selects the scope of a sidebar row; a recap gets the stored switch for the team. Without a scope, has no effect.
    void setSidebarSelection(const std::optional<IssueScope> &scope);
    Q_INVOKABLE void selectInSidebar(const IssueScope &scope) { setSidebarSelection(scope); }
    /// Fetches the current list again. If reloads overlap, only the last one started writes its result.
    QCoro::Task<> reload();
    /// A reload requested by the user. Also fetches what the start of the session could not. A failure is shown in a
    /// toast if the list is not empty.
    Q_INVOKABLE void refresh();
    QCoro::Task<> refreshMyIssues();
    /// Fetches all data of an opened issue: the record, its comments and its transitions.
    QCoro::Task<> loadDetails(QString key, std::stop_token stop = {});
    /// Fetches a project's statuses, assignable users and types, once in a session.
    QCoro::Task<> loadProjectMeta(QString key);
    /// Issues that the service finds; none on any failure.
    QCoro::Task<IssueList> searchRemote(QString text, std::stop_token stop = {});
    /// The most complete known record of the issue.
    std::optional<SharedIssue> issue(const QString &key) const;
    std::optional<Project> project(const QString &key) const;
    /// The last known list of each scope shown in this session.
    const QHash<IssueScope, IndexedIssues> &scopeCache() const { return m_scopeCache; }
    /// Every user received so far, by id; kept across sessions.
    const QHash<QString, JiraUser> &knownUsers() const { return m_knownUsers; }

    // Derived lists: each is computed at most once per change of its dependencies -------------------------------------
    const IssueList &visibleIssues() const { return derivation().visibleIssues(); }
    const QList<IssueGroup> &groups() const { return derivation().groups(); }
    const QList<IssueGroup> &boardColumns() const { return derivation().boardColumns(); }
    /// The keys in display order, in which the arrow keys move.
    const QStringList &flatVisibleKeys() const { return derivation().flatVisibleKeys(); }
    /// The same keys, with an index of their positions.
    const VisiblePath &visiblePath() const { return derivation().visiblePath(); }
    /// All of the above and the entries of the filter menus.
    const IssueDerivation &derivation() const;
    /// The current time, updated each minute, for relative dates.
    const QDateTime &now() const { return *m_now; }
    const UserCalendar &calendar() const { return m_context.calendar; }
    /// Sets the user's calendar. Everything that shows dates or sorts names is updated.
    void setCalendar(const UserCalendar &calendar);
    /// The clock, for timers of screens.
    Clock &clock() const { return m_context.clock; }
    /// Each is updated while its layout is the current one, and is emptied at the end of the session.
    IssueListModel *issueList() { return &m_issueList; }
    BoardModel *board() { return &m_board; }
    SidebarModel *sidebar() { return &m_sidebar; }
    ToastModel *toastModel() { return &m_toastModel; }

    // Edits: each is shown at once in every copy of its issues and sent. If it is refused, it is undone with a toast.
    // Unknown issues are left out, and so are issues that already have the wanted value -------------------------------
    /// Carries out transitions, at most eight at a time. Each issue gets the status that its workflow actually reaches.
    void setStatus(const IssueStatus &status, const QStringList &keys);
    void setPriority(const IssuePriority &priority, const QStringList &keys);
    /// Without a user, unassigns the issues. Refreshes the user's own issues.
    void assign(const QStringList &keys, const std::optional<JiraUser> &user);
    /// Removes the label if all issues have it, else adds it where it is missing.
    void toggleLabel(const QString &label, const QStringList &keys);
    /// Appends the label to the labels of the issues that do not have it.
    void addLabel(const QString &label, const QStringList &keys);
    void setLabels(const QStringList &labels, const QString &key);
    void rename(const QString &key, const QString &title);
    /// A text without words clears the description.
    void setDescription(const QString &markdown, const QString &key);
    /// Without a day, clears the date.
    void setDueDate(const std::optional<QDate> &day, const QString &key);
    /// Carries out the action of a picker row.
    void run(const OptionAction &action);

    // Comments and creation, which are shown only once they are stored ------------------------------------------------
    /// Returns whether the comment was posted; until then the caller must keep the text. Names after an "@" become
    /// mentions; users in `mentions` take precedence.
    QCoro::Task<bool> addComment(QString markdown, QString key, CommentAudience audience,
                                 QList<JiraUser> mentions);
    /// Returns the key of the new issue, which is then focused and open; nothing if it was refused.
    QCoro::Task<std::optional<QString>> create(IssueDraft draft);
    std::optional<QString> defaultProjectKey() const;
    /// Without a project, the project of the issue is used.
    QList<JiraUser> mentionCandidates(const std::optional<QString> &issueKey = {},
                                      const std::optional<QString> &projectKey = {}) const;
    /// Users that the service finds; none on any failure.
    QCoro::Task<QList<JiraUser>> searchUsers(QString query, std::stop_token stop = {});

    // Attachments: a failure is shown in a toast ----------------------------------------------------------------------
    /// Returns the stored attachments; empty on failure. Either all files are uploaded or none.
    QCoro::Task<QList<Attachment>> uploadAttachments(QString key, QList<QUrl> files);
    /// Uploads the files on the clipboard, else its picture, with the date in its name.
    QCoro::Task<> uploadFromPasteboard(QString key);
    /// A local file with the attachment's content; nothing on failure.
    QCoro::Task<std::optional<QUrl>> localFile(Attachment attachment);
    void deleteAttachment(const Attachment &attachment, const QString &key);

    // Selection -------------------------------------------------------------------------------------------------------
    void setPageLength(int issues) { m_pageLength = qMax(1, issues); }
    Q_INVOKABLE void toggleGroup(const QString &id);
    /// Moves the focus by `delta` rows, without wrapping; an open inspector follows.
    void moveFocus(int delta, FocusMove move = FocusMove::Plain);
    /// A click on a row or a card with these `Qt::KeyboardModifiers`.
    Q_INVOKABLE void handleClick(const QString &key, int modifiers = 0);
    Q_INVOKABLE void toggleCheck(const QString &key);
    /// Focuses the issue and shows it in the inspector.
    void openInInspector(const QString &key);
    /// Closes the inspector, or opens it with the focused issue, else with the first visible one.
    Q_INVOKABLE void togglePeek();
    bool showInspector() const { return m_inspectorKey->has_value(); }
    void setShowInspector(bool shown);
    /// The issues that a key or a menu acts on.
    QStringList actionTargets() const;
    /// The issues that a context menu or a drag of one row acts on.
    QStringList contextKeys(const QString &key) const;
    /// Opens the create screen, in the project of the list if none is given; only in a session.
    Q_INVOKABLE void newIssue() { newIssue(std::nullopt); }
    void newIssue(const std::optional<QString> &projectKey);

    // Keys and commands -----------------------------------------------------------------------------------------------
    /// Carries out the command of a press in the key map; false if the press is not consumed. Must not be called for
    /// presses that a text field, the palette or the create screen handles.
    bool handleKey(const KeyPress &press);
    /// Carries out a command on the issues that are chosen. If it needs an issue and none is chosen, or needs the
    /// account and that is unknown, a toast says so.
    Q_INVOKABLE void run(Commands::Command command);
    /// The same on these issues; a command on one issue takes the first.
    Q_INVOKABLE void run(Commands::Command command, QStringList keys);
    QList<OptionItem> options(PickerKind kind, const QStringList &keys) const;
    /// The signals of all fields that `options` depends on.
    static constexpr std::array optionSources{
        &AppStoreFields::issuesChanged,       &AppStoreFields::detailsChanged,
        &AppStoreFields::transitionsChanged,  &AppStoreFields::projectStatusesChanged,
        &AppStoreFields::assignablesChanged,  &AppStoreFields::prioritiesChanged,
        &AppStoreFields::myOpenIssuesChanged, &AppStoreFields::meChanged};

    // Clipboard and browser -------------------------------------------------------------------------------------------
    void copy(const QString &text, const QString &label);
    Q_INVOKABLE void openSite();
    /// The URL of an issue at the site; without a key, of the first chosen issue.
    std::optional<QUrl> browseURL(const std::optional<QString> &key = {}) const;
    /// Opens a URL of the program's own in the browser.
    void openAddress(const QUrl &address);

    // Recap: has no effect outside a recap ----------------------------------------------------------------------------
    const ActivitySummary &activitySummary() const;
    /// Empty outside a recap.
    const ActivityHeaderData &activityHeader() const { return *m_activityHeader; }
    /// Copies a report in Markdown.
    Q_INVOKABLE void copyActivityRecap();
    Q_INVOKABLE void showPreviousPeriod();
    Q_INVOKABLE void showNextPeriod();
    Q_INVOKABLE void showRange(Model::ActivityRange range);
    Q_INVOKABLE void showPeople(Recap::People people);
    /// The latest event of an issue in a recap.
    std::optional<ActivityBadge> badgeOf(const Issue &issue) const;
    /// The status of a name in an issue's history.
    IssueStatus statusNamed(const QString &name, const QString &projectKey) const;

    // Toasts ----------------------------------------------------------------------------------------------------------
    void toast(const QString &message, const QString &symbol, ToastKind kind = ToastKind::Notice);
    Q_INVOKABLE void dismissToast(const QUuid &id);
    /// Switches to the next appearance and shows a toast.
    Q_INVOKABLE void cycleAppearance();

Q_SIGNALS:
    void nowChanged();
    void calendarChanged();
    void activityHeaderChanged();
    /// The site refused a change; `reason` is the text of the toast.
    void writeRefused(const QString &reason);
    /// Requests a separate window for the issue.
    void openWindowRequested(const QString &key);
    /// Request the settings window, the same with the reference of shortcuts, and a search for a newer version.
    void settingsRequested();
    void shortcutsRequested();
    void updateCheckRequested();

private:
    // They run in the current session and await through it. When it ends, `OwnerGone` ends them without a result.

    // AppStoreSession.cpp
    QCoro::Task<> activate(SiteSessions::Opened opened, Session::Kind kind,
                           std::optional<JiraUser> knownUser);
    Session *open(const SiteSessions::Opened &opened, Session::Kind kind);
    QCoro::Task<std::optional<QString>> fetchBasics();
    QCoro::Task<std::optional<QString>> fetchMissingBasics();
    QCoro::Task<> completeSession();
    void showSignIn(const std::optional<QString> &issue);
    void endSession();
    void resetData();
    void startAutoRefresh();
    QCoro::Task<> refreshInBackground();
    // AppStoreLoading.cpp
    /// Who requested a reload; determines how its failure is shown.
    enum class AskedBy { Program, User };
    QCoro::Task<> refreshForUser();
    QCoro::Task<> reloadList(AskedBy askedBy);
    QCoro::Task<> reloadMyIssues();
    QCoro::Task<IssueList> foundIssues(QString text, std::stop_token stop);
    void takeReloaded(const IssueScope &scope, const IssueList &answer,
                      const OpenEdits::Reading &reading);
    void takeReloadFailure(const TaskFailure &failure, AskedBy askedBy);
    IssueList current(const IssueList &answer, const OpenEdits::Reading &reading);
    IssueList withJustCreated(const IssueList &fresh, const IssueScope &scope,
                              const OpenEdits::Reading &reading) const;
    void startProjectMeta();
    void mergeIntoDetails();
    void uncheckUnlisted();
    // AppStoreDetails.cpp
    QCoro::Task<> fetchDetails(QString key, std::stop_token stop);
    QCoro::Task<> fetchProjectMeta(QString key);
    void takeDetails(const QString &key, const Issue &answer, const OpenEdits::Reading &reading);
    void takeFullRecord(const Issue &issue);
    void showJustCreated(const SharedIssue &issue);
    void takeDetailsFailure(const QString &key, const TaskFailure &failure);
    void takeAssignables(const QString &key, const QList<JiraUser> &users);
    // AppStoreEdits.cpp, AppStoreTransitions.cpp
    IssueList knownIssues(const QStringList &keys) const;
    void carryOut(const QList<OptimisticEdit> &edits);
    QList<OpenEdits::Id> show(const QList<OptimisticEdit> &edits);
    QCoro::Task<> commit(OptimisticEdit edit, OpenEdits::Id id);
    QCoro::Task<> transition(QString key, OpenEdits::Id id, IssueStatus wished);
    QCoro::Task<IssueStatus> moved(QString key, IssueStatus wished);
    void undo(OpenEdits::Id id, const TaskFailure &failure);
    void showConfirmed(const std::optional<OptimisticEdit> &confirmed);
    // AppStoreComments.cpp
    QCoro::Task<bool> postComment(QString markdown, QString key, CommentAudience audience,
                                  QList<JiraUser> mentions);
    QCoro::Task<std::optional<QString>> createIssue(IssueDraft draft);
    QCoro::Task<QList<JiraUser>> foundUsers(QString query, std::stop_token stop);
    void mutate(const IssueChanges &changes);
    // AppStoreOptions.cpp
    OptionInputs optionInputs(const QStringList &keys) const;
    // AppStoreAttachments.cpp
    QCoro::Task<QList<Attachment>> upload(QString key, QList<QUrl> files);
    QCoro::Task<> uploadPasted(QString key);
    QCoro::Task<std::optional<QUrl>> downloaded(Attachment attachment);
    void endUpload(Uploads::Running upload, const Settled<QList<Attachment>> &stored);
    void takeUploaded(const QString &key, const QList<Attachment> &attachments);
    // AppStoreSelection.cpp
    Selection selection() const;
    void setSelection(const Selection &selection);
    // AppStoreCommands.cpp
    /// Absent means the chosen issues.
    using TargetKeys = std::optional<QStringList>;
    std::optional<int> stepOf(Command command) const;
    /// Returns false if there was nothing to do.
    bool carryOut(Command command, const TargetKeys &keys, FocusMove move);
    bool carryOutOnIssues(Command command, const TargetKeys &keys);
    void carryOutInWindow(Command command);
    void openPicker(PickerKind kind, const TargetKeys &keys);
    void togglePalette();
    void assignToMe(const TargetKeys &keys);
    QStringList targetsOrToast(const TargetKeys &keys);
    bool takeSelection(const std::optional<Selection> &next);
    bool openIssue(const TargetKeys &keys);
    bool requestWindow(const TargetKeys &keys);
    bool toggleFocusedCheck();
    bool escape();
    // AppStoreClipboard.cpp
    void copy(const CopiedText &copied);
    void copyKeys(const TargetKeys &keys);
    void copyBranch(const std::optional<QString> &key);
    void copyLink(const std::optional<QString> &key);
    void openInBrowser(const std::optional<QString> &key);
    std::optional<QString> targetOr(const std::optional<QString> &key) const;
    // AppStoreRecap.cpp
    void turnTo(const ActivityPeriod &period);
    void refreshActivityHeader();
    void refreshBadges();
    const StatusLookup &statusLookup() const;
    const QHash<QString, JiraUser> &badgeUsers() const;
    // AppStoreToasts.cpp
    void report(const TaskFailure &failure);
    void reportRefusal(const TaskFailure &failure);
    // AppStoreDerived.cpp
    void flush(unsigned what) override;
    IssueDerivationInputs derivationInputs() const;
    void feedLists();
    void feedBoard();
    void feedGroups();
    void feedMarks();
    void feedSidebar();
    void refreshCaptions();
    QString listAgeText() const;
    QString countHintText() const;
    void startMinutes();

    AppStoreContext m_context;
    bool m_didBootstrap = false;
    int m_pageLength = 1;
    /// Attempts to open a session. Only the newest one is valid, until a session begins or ends.
    Newest m_openings;
    PendingWrites m_writes;
    QHash<IssueScope, IndexedIssues> m_scopeCache;
    QHash<QString, JiraUser> m_knownUsers;
    Clock::TimerHandle m_refreshTimer;
    Clock::TimerHandle m_minuteTimer;
    std::map<QUuid, Clock::TimerHandle> m_toastTimers;

    /// Updated from the fields when it is read and when a batch ends.
    mutable IssueDerivation m_derivation;
    Observed<AppStore, QDateTime> m_now{this, &AppStore::nowChanged, Time, m_context.clock.now()};
    Observed<AppStore, ActivityHeaderData> m_activityHeader{this, &AppStore::activityHeaderChanged};
    mutable RecapMemos m_recap;
    /// The versions that the models show; 0 at first. For badges, the versions of statuses and users.
    std::pair<quint64, QSet<QString>> m_fedGroups;
    quint64 m_fedBoard = 0;
    std::pair<quint64, quint64> m_fedBadges;
    IssueListModel m_issueList{m_context.calendar, *m_now};
    BoardModel m_board{m_context.calendar, *m_now};
    SidebarModel m_sidebar;
    ToastModel m_toastModel;
};
