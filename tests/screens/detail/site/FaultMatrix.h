#pragma once

#include "screens/detail/site/SiteWindow.h"

#include <QPointer>
#include <QQuickItem>

#include <tuple>

/// What the user is in the middle of. The last three wait for the response to a write.
enum class Activity { Title, Description, Mention, DueDate, NewIssue, Comment, Upload, Creation };

/// What happens in the meantime.
enum class Fault { Change, Refusal, OtherSession, LostConnection, SlowSite };

/// The item with the focus, with what is typed in it.
struct Place
{
    QPointer<QQuickItem> item;
    QString name;
    QString text;
    int caret = 0;

    bool operator==(const Place &) const = default;
};

/// For the message of a failed test.
void PrintTo(const Place &place, std::ostream *out);

/// Each fault in the middle of each activity on an issue of the service project, in a window of its own, or in the sheet
/// for a new issue.
class FaultMatrix : public SiteWindow,
                    public testing::WithParamInterface<std::tuple<Activity, Fault>>
{
protected:
    FaultMatrix();

    SiteIssue &siteIssue() { return *site.site().issue(key); }
    bool isSheet() const
    {
        return activity == Activity::NewIssue || activity == Activity::Creation;
    }
    bool isWaiting() const { return activity >= Activity::Comment; }

    void openIssue();
    void openSheet();
    qsizetype commentsShown();
    Place place();
    /// Types a text, and then sets the caret inside it.
    void typeWithCaretInside(const QString &text);

    // The activities --------------------------------------------------------------------------------------------------
    void begin();
    /// Sends what the activity is about. The response waits.
    void beginWrite();
    /// Sends the text or pastes a file.
    void write();
    /// The highlighted suggestion.
    QString suggested();
    /// The user ends the activity: sends again what was refused, and saves what was typed.
    void finish();
    /// Whether the user must send again.
    bool isWriteRefused() const;

    // The faults ------------------------------------------------------------------------------------------------------
    void meetFault();
    /// Somebody else has changed the issue. A write that waits is stored, and its response arrives later.
    void meetChange();
    /// Fetches the list and the issue again, and waits for the end of it.
    void loadEverything();
    void meetRefusal();
    void meetOtherSession();
    void meetLostConnection();
    void meetSlowSite();

    // The claims ------------------------------------------------------------------------------------------------------
    /// What the site stored by the activity; empty if it stored nothing.
    QStringList stored();
    /// What the site should have stored.
    QString wanted() const;
    /// The writes that the user has asked for.
    qsizetype asked() const;
    /// The second session knows nothing of what was typed in the first one.
    void expectForgotten(qsizetype writesBefore);
    /// In the second session, opens what was open in the first one.
    void beginAgain();
    void expectStoredOnce();
    void expectLinkedOnce();

    const Activity activity = std::get<0>(GetParam());
    const Fault fault = std::get<1>(GetParam());
    const QString key = keysOf(QStringLiteral("AIDE")).first();
    /// The suggestion that the user has highlighted.
    QString mentioned;
    /// What the user types.
    const QString typed = QStringLiteral("Imprimante en panne");
};
