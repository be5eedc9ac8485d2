#pragma once

#include "model/Comment.h"
#include "model/DisplayProperties.h"
#include "model/Issue.h"
#include "model/IssueScope.h"
#include "model/IssueService.h"
#include "model/Project.h"
#include "platform/Clock.h"
#include "platform/Desktop.h"
#include "platform/Preferences.h"
#include "state/IssueFilters.h"
#include "state/IssueGroup.h"
#include "state/Toast.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>

#include <functional>
#include <memory>

/// The outside world, as the store needs it. All references outlive the store.
struct AppStoreContext {
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
class AppStore : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the composition root")
    // The full list of properties is the implementer's: one per observed field, FINAL, with its own NOTIFY.

public:
    enum class Phase { Launching, SignedOut, Ready };
    Q_ENUM(Phase)

    explicit AppStore(AppStoreContext context, QObject *parent = nullptr);
    ~AppStore() override;

    // Session ---------------------------------------------------------------------------------------------------------
    /// Comes to a first phase; acts only the first time.
    QCoro::Task<> bootstrap();
    QCoro::Task<> startDemo();
    void signOut();

    // Loading ---------------------------------------------------------------------------------------------------------
    void select(const IssueScope &scope);
    IssueScope sidebarSelection() const;
    void setSidebarSelection(const std::optional<IssueScope> &scope);
    QCoro::Task<> reload();
    QCoro::Task<> refreshMyIssues();
    QCoro::Task<> loadDetails(QString key);
    QCoro::Task<> loadProjectMeta(QString key);
    QCoro::Task<IssueList> searchRemote(QString text, std::stop_token stop = {});
    std::optional<SharedIssue> issue(const QString &key) const;
    std::optional<Project> project(const QString &key) const;

    // Derived lists ---------------------------------------------------------------------------------------------------
    const IssueList &visibleIssues() const;
    const QList<IssueGroup> &groups() const;
    const QList<IssueGroup> &boardColumns() const;
    const QStringList &flatVisibleKeys() const;

    // Preferences and toasts ------------------------------------------------------------------------------------------
    void cycleAppearance();
    void toggleFavorite(const QString &projectKey);
    void toast(const QString &message, const QString &symbol, ToastKind kind = ToastKind::Notice);
    void dismissToast(const QUuid &id);
};
