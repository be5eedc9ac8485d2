#pragma once

#include "screens/detail/site/SiteWindow.h"

#include <QQuickItem>

/// What the user has: keys only, or the pointer and keys for letters only.
enum class Hand { Keys, Pointer };

enum class BackEnd { Site, Demo };

/// How a walk is done, and in which window. The main window is never smaller than 940 by 580.
struct WalkWorld
{
    Hand hand;
    BackEnd backEnd;
    QSize size;
    AppearanceMode appearance;
};

/// For the message of a failed test.
void PrintTo(const WalkWorld &world, std::ostream *out);

/// What the back end has of an issue. Texts are as the back end has them, with more than the words.
struct KeptIssue
{
    QString title;
    QString description;
    std::optional<QDate> due;
    QStringList files;
    QStringList comments;
    int noteCount = 0;
};

/// A user who works with keys only or with the pointer only. Each control that is used must lie inside its window and not
/// be covered by another item. A step has the same description for both.
class IssueWalk : public SiteWindow, public testing::WithParamInterface<WalkWorld>
{
protected:
    IssueWalk();

    bool hasKeys() const { return GetParam().hand == Hand::Keys; }
    bool isDemo() const { return GetParam().backEnd == BackEnd::Demo; }

    // What is there ---------------------------------------------------------------------------------------------------
    /// Waits for a condition, and advances the clock meanwhile: toasts go, and the demo responds.
    bool until(const std::function<bool()> &condition);
    /// The first visible item of this role whose name matches a regular expression; null if there is none.
    QQuickItem *item(QAccessible::Role role, const QString &name);
    /// Waits for an item, which must come. Null after a failure.
    QQuickItem *see(QAccessible::Role role, const QString &name);
    bool isAway(QAccessible::Role role, const QString &name);
    bool hasFocus(QAccessible::Role role, const QString &name);
    QString valueOf(QAccessible::Role role, const QString &name);
    KeptIssue kept(const QString &key);
    /// All titles that the back end has.
    QStringList titles();
    /// The site has received exactly these writes since the last call. In the demo, nothing is being written any more.
    void expectWrites(const QStringList &expected);

    // What a user does ------------------------------------------------------------------------------------------------
    /// Presses a control.
    void choose(QAccessible::Role role, const QString &name);
    /// Gives a field the focus.
    void enter(QAccessible::Role role, const QString &name);
    /// Replaces the text of the field with the focus.
    void rewrite(const QString &text);
    /// Moves the focus of the list to an issue.
    void goTo(const QString &key);
    /// Shows the issue in a window of its own, which becomes the present one.
    void openOwn(const QString &key);
    /// Opens the context menu of a control with the pointer.
    void openMenuOf(QAccessible::Role role, const QString &name);
    /// The files that a paste or a drop brings.
    std::unique_ptr<QMimeData> files(const QString &name);

    /// An issue of a service project, and one that has a parent.
    QString subject;
    QString child;
    QString parent;

private:
    void prepareSite();
    void reach(QAccessible::Role role, const QString &name);
    void tabTo(QAccessible::Role role, const QString &name);
    /// Turns the wheel until an item can be pressed.
    void scrollTo(QAccessible::Role role, const QString &name);
    void scrollListTo(const QString &key);
    void pointAndPress(const QQuickItem &target, Qt::MouseButton button);
    void turnWheel(QPointF place, int angle);
    /// The item that would receive a press at the centre of an item; null outside the window.
    QQuickItem *pressedAt(QQuickItem &target);
    bool isWithinReach(QQuickItem &target);
    void expectWithinReach(QAccessible::Role role, const QString &name);

    qsizetype m_writesSeen = 0;
};
