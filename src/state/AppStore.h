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
/// toasts. Made once by the composition root; lives on the UI thread; the single writer of its fields. Screens bind to
/// its properties and call its operations, and never see the service.
///
/// Asynchronous operations never fail. They belong to the session in which they begin: when it is over they end without a
/// result and change nothing. A wait that outlives the store ends with `OwnerGone`.
class AppStore : public AppStorePreferences
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the composition root")
    // Cases of different enumerations share names.
    Q_CLASSINFO("RegisterEnumClassesUnscoped", "false")

    // Selection
    Q_PROPERTY(bool showInspector READ showInspector WRITE setShowInspector NOTIFY
                   inspectorKeyChanged FINAL)
    // What is made from the fields
    Q_PROPERTY(QDateTime now READ now NOTIFY nowChanged FINAL)
    Q_PROPERTY(
        ActivityHeaderData activityHeader READ activityHeader NOTIFY activityHeaderChanged FINAL)
    Q_PROPERTY(IssueListModel *issueList READ issueList CONSTANT FINAL)
    Q_PROPERTY(BoardModel *board READ board CONSTANT FINAL)
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
    /// Deletes the token, and goes back to the first screen.
    Q_INVOKABLE void signOut();
    /// Whether `bootstrap` will open the demo, which asks nobody for anything.
    bool startsWithDemo() const;
    /// Opens the session that is saved, if there is one and the system hands it over. A session that was begun or ended
    /// in the meantime stands.
    QCoro::Task<> restoreSavedSession();
    /// `restoreSavedSession` for a button, which does not wait.
    Q_INVOKABLE void retrySavedSession();
    /// Signs in: tries the credentials, keeps them, and leaves whatever session there is for theirs. Fails with the
    /// words to show beside the form, and then nothing has changed.
    QCoro::Task<> connect(QString site, QString email, QString token);
    using QObject::connect;
    /// What the form offers: the site and the e-mail of the last sign-in.
    SignIn lastSignIn() const { return m_context.sessions.lastSignIn(); }

    /// The writes that are not answered yet, those of sessions that are over included.
    const PendingWrites &writes() const { return m_writes; }

    // Loading ---------------------------------------------------------------------------------------------------------
    /// Shows another list: its last known state at once, and a fresh one when the service has answered.
    Q_INVOKABLE void select(const IssueScope &scope);
    /// Selects the scope of a sidebar row; a recap takes the stored switch for the team. Nothing is ignored.
    void setSidebarSelection(const std::optional<IssueScope> &scope);
    Q_INVOKABLE void selectInSidebar(const IssueScope &scope) { setSidebarSelection(scope); }
    /// Fetches the current list anew. Of overlapping reloads only the last one started writes.
    QCoro::Task<> reload();
    /// Fetches the current list, and what the start of the session could not, for a user who asked for it: a failure is
    /// told by a toast where the list is not empty.
    Q_INVOKABLE void refresh();
    QCoro::Task<> refreshMyIssues();
    /// Fetches all of an opened issue: the record, its comments and its transitions.
    QCoro::Task<> loadDetails(QString key, std::stop_token stop = {});
    /// Fetches a project's statuses, assignable users and types, once in a session.
    QCoro::Task<> loadProjectMeta(QString key);
    /// Issues that the service finds; none on any failure.
    QCoro::Task<IssueList> searchRemote(QString text, std::stop_token stop = {});
    /// The best known record of the issue.
    std::optional<SharedIssue> issue(const QString &key) const;
    std::optional<Project> project(const QString &key) const;
    /// The last known list of each scope met in this session.
    const QHash<IssueScope, IssueList> &scopeCache() const { return m_scopeCache; }
    /// Every user met so far, by id; outlives sessions.
    const QHash<QString, JiraUser> &knownUsers() const { return m_knownUsers; }

    // Derived lists: each computed at most once per change of what it depends on ---------------------------------------
    const IssueList &visibleIssues() const { return derivation().visibleIssues(); }
    const QList<IssueGroup> &groups() const { return derivation().groups(); }
    const QList<IssueGroup> &boardColumns() const { return derivation().boardColumns(); }
    /// The keys in display order: the path of the arrow keys.
    const QStringList &flatVisibleKeys() const { return derivation().flatVisibleKeys(); }
    /// The same path, on which keys are found.
    const VisiblePath &visiblePath() const { return derivation().visiblePath(); }
    /// All of the above and what the filter menus offer.
    const IssueDerivation &derivation() const;
    /// The present to the minute, for relative dates.
    const QDateTime &now() const { return *m_now; }
    const UserCalendar &calendar() const { return m_context.calendar; }
    /// The user's calendar has changed: everything that shows dates or sorts names is updated.
    void setCalendar(const UserCalendar &calendar);
    /// For screens that wait.
    Clock &clock() const { return m_context.clock; }
    /// Each follows the issues while its layout is the present one, and is emptied with the session.
    IssueListModel *issueList() { return &m_issueList; }
    BoardModel *board() { return &m_board; }
    SidebarModel *sidebar() { return &m_sidebar; }
    ToastModel *toastModel() { return &m_toastModel; }

    // Edits: each shows at once in every copy of its issues, is sent, and comes back with a toast if it is refused; keys
    // of unknown issues are left out, and so are issues that are as wished already --------------------------------------
    /// Moves issues by their workflows, at most eight at a time; each ends in the status that its workflow really reaches.
    void setStatus(const IssueStatus &status, const QStringList &keys);
    void setPriority(const IssuePriority &priority, const QStringList &keys);
    /// Nobody unassigns. Refreshes the user's own issues.
    void assign(const QStringList &keys, const std::optional<JiraUser> &user);
    /// Takes the label off when all issues have it, else adds it where it is missing.
    void toggleLabel(const QString &label, const QStringList &keys);
    /// Adds the label behind their own to the issues that have it not.
    void addLabel(const QString &label, const QStringList &keys);
    void setLabels(const QStringList &labels, const QString &key);
    void rename(const QString &key, const QString &title);
    /// A text without a word clears the description.
    void setDescription(const QString &markdown, const QString &key);
    /// Nothing clears the date.
    void setDueDate(const std::optional<QDate> &day, const QString &key);
    /// Carries out what picking a row does.
    void run(const OptionAction &action);

    // Comments and creation, which show only when they are stored --------------------------------------------------------
    /// Gives whether the comment was posted; until then its text is the caller's to keep. Names after an "@" become
    /// mentions, of `mentions` first.
    QCoro::Task<bool> addComment(QString markdown, QString key, CommentAudience audience,
                                 QList<JiraUser> mentions);
    /// Gives the key of the new issue, which is then focused and open; nothing when it was refused.
    QCoro::Task<std::optional<QString>> create(IssueDraft draft);
    std::optional<QString> defaultProjectKey() const;
    /// Without a project the issue's counts.
    QList<JiraUser> mentionCandidates(const std::optional<QString> &issueKey = {},
                                      const std::optional<QString> &projectKey = {}) const;
    /// Users that the service finds; none on any failure.
    QCoro::Task<QList<JiraUser>> searchUsers(QString query, std::stop_token stop = {});

    // Attachments: what fails ends in a toast -------------------------------------------------------------------------------
    /// Gives what was stored; nothing when it failed. All files go together or not at all.
    QCoro::Task<QList<Attachment>> uploadAttachments(QString key, QList<QUrl> files);
    /// Uploads the files on the pasteboard, else the picture on it, as a dated capture.
    QCoro::Task<> uploadFromPasteboard(QString key);
    /// A file with the attachment's content; nothing when it cannot be had.
    QCoro::Task<std::optional<QUrl>> localFile(Attachment attachment);
    void deleteAttachment(const Attachment &attachment, const QString &key);

    // Selection -------------------------------------------------------------------------------------------------------
    Q_INVOKABLE void toggleGroup(const QString &id);
    /// Moves the focus by `delta` rows, without wrapping; an open inspector follows.
    void moveFocus(int delta, FocusMove move = FocusMove::Plain);
    /// A click on a row or a card with these `Qt::KeyboardModifiers`.
    Q_INVOKABLE void handleClick(const QString &key, int modifiers = 0);
    Q_INVOKABLE void toggleCheck(const QString &key);
    /// Takes the focus to the issue and shows it in the inspector.
    void openInInspector(const QString &key);
    /// Closes the inspector, or opens it on the focused issue, else on the first one shown.
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

    // Keys and commands -------------------------------------------------------------------------------------------------
    /// Carries out what the key map makes of a press; false for a press that is not consumed. Not for presses that a text
    /// field, the palette or the create screen should have.
    bool handleKey(const KeyPress &press);
    /// Carries out a command on the issues that are chosen. Where it needs one and there is none, a toast asks for it; where
    /// it needs the account and that is unknown, a toast says so.
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

    // Pasteboard and browser --------------------------------------------------------------------------------------------
    void copy(const QString &text, const QString &label);
    Q_INVOKABLE void openSite();
    /// The address of an issue at the site; without a key of the first of the issues that are chosen.
    std::optional<QUrl> browseURL(const std::optional<QString> &key = {}) const;
    /// Gives an address that the program itself knows to the browser.
    void openAddress(const QUrl &address);

    // Recap; outside of one nothing of it does anything ------------------------------------------------------------------
    const ActivitySummary &activitySummary() const;
    /// How often each part was computed tells whether a read did any work.
    const RecapMemos &recapMemos() const { return m_recap; }
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
    /// Goes on to the next appearance and says so.
    Q_INVOKABLE void cycleAppearance();

Q_SIGNALS:
    void nowChanged();
    void calendarChanged();
    void activityHeaderChanged();
    /// The site did not take a change; `reason` is the text of the toast.
    void writeRefused(const QString &reason);
    /// Asks for the window of an issue of its own.
    void openWindowRequested(const QString &key);
    /// Asks for the window of the settings.
    void settingsRequested();

private:
    // The private operations run in the present session and await through it. `OwnerGone` ends them when it is over; the
    // public ones then end without a result.

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
    /// Who asked for a reload decides who is told of its failure.
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
    void countUploads(const QString &key, int change);
    void takeUploaded(const QString &key, const QList<Attachment> &attachments);
    // AppStoreSelection.cpp
    Selection selection() const;
    void setSelection(const Selection &selection);
    // AppStoreCommands.cpp
    /// Absent for the issues that are chosen.
    using TargetKeys = std::optional<QStringList>;
    /// False when there was nothing to do.
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
    /// Attempts to open a session: the newest one counts, until a session begins or ends.
    Newest m_openings;
    PendingWrites m_writes;
    QHash<IssueScope, IssueList> m_scopeCache;
    QHash<QString, JiraUser> m_knownUsers;
    Clock::TimerHandle m_refreshTimer;
    Clock::TimerHandle m_minuteTimer;
    std::map<QUuid, Clock::TimerHandle> m_toastTimers;

    /// Follows the fields when it is read and when a batch ends.
    mutable IssueDerivation m_derivation;
    Observed<AppStore, QDateTime> m_now{this, &AppStore::nowChanged, Time, m_context.clock.now()};
    Observed<AppStore, ActivityHeaderData> m_activityHeader{this, &AppStore::activityHeaderChanged};
    mutable RecapMemos m_recap;
    /// What the models show; nothing yet at 0. Badges: the statuses and the users that they were told from.
    std::pair<quint64, QSet<QString>> m_fedGroups;
    quint64 m_fedBoard = 0;
    std::pair<quint64, quint64> m_fedBadges;
    IssueListModel m_issueList{m_context.calendar, *m_now};
    BoardModel m_board{m_context.calendar, *m_now};
    SidebarModel m_sidebar;
    ToastModel m_toastModel;
};
