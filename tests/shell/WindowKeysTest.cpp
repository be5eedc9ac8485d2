#include "app/WindowFixture.h"

#include <QQmlEngine>
#include <QQuickItem>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

struct Press
{
    Qt::Key key = Qt::Key_unknown;
    Qt::KeyboardModifiers modifiers;
};

/// The key press that a text such as "Ctrl+Maj+O" describes.
Press pressOf(const QString &text)
{
    static const QHash<QString, Qt::Key> named{
        {u"↩"_s, Qt::Key_Return}, {u"Échap"_s, Qt::Key_Escape}, {u"Espace"_s, Qt::Key_Space}};
    static const QHash<QString, Qt::KeyboardModifier> modifiers{{u"Ctrl"_s, Qt::ControlModifier},
                                                                {u"Maj"_s, Qt::ShiftModifier},
                                                                {u"Alt"_s, Qt::AltModifier}};
    Press press;
    for (const QString &part : text.split(u'+')) {
        if (modifiers.contains(part))
            press.modifiers |= modifiers.value(part);
        else
            press.key = named.value(part, Qt::Key(part.isEmpty() ? 0 : part.front().unicode()));
    }
    return press;
}

/// With Shift a punctuation key types another character, so that only its scan code identifies the key.
void pressPlace(QQuickWindow &window, quint32 scanCode, Qt::KeyboardModifiers modifiers)
{
    QKeyEvent press(QEvent::KeyPress, Qt::Key_unknown, modifiers, scanCode, 0, 0, u"§"_s);
    QCoreApplication::sendEvent(&window, &press);
}

void pressIn(QQuickWindow &window, const Press &press)
{
    static const QHash<int, quint32> signs{{Qt::Key_Comma, 59}, {Qt::Key_Period, 60}};
    if (press.modifiers.testFlag(Qt::ShiftModifier) && signs.contains(press.key))
        pressPlace(window, signs.value(press.key), press.modifiers);
    else
        QTest::keyClick(&window, press.key, press.modifiers);
}

void collectFrom(const QQuickItem *item, QStringList &keys)
{
    static const QRegularExpression brackets(u"\\(([^)\\s]+)\\)"_s);
    if (!item->isVisible() || !item->isEnabled())
        return;
    for (const char *name : {"hint", "accessibleName"}) {
        for (const auto &match : brackets.globalMatch(item->property(name).toString()))
            keys.append(match.captured(1));
    }
    if (const QString shortcut = item->property("shortcut").toString(); !shortcut.isEmpty())
        keys.append(shortcut);
    for (const auto *child : item->childItems())
        collectFrom(child, keys);
}

} // namespace

/// Every key that a window mentions has an effect in that window.
class WindowKeys : public WindowFixture
{
protected:
    WindowKeys()
    {
        serve({u"MOB-1"_s, u"MOB-2"_s, u"MOB-3"_s});
        service->issueCalls.answerBy(
            [this](const QString &key) { return *store().issue(key).value_or(SharedIssue()); });
        openOnDemo();
        desktop->setPrefersReducedMotion(true);
        quits = std::make_unique<QSignalSpy>(qmlEngine(&window()), &QQmlEngine::quit);
    }

    /// The keys that the visible buttons and the menus mention.
    static QStringList keysNamedIn(QQuickWindow &named)
    {
        QStringList keys;
        collectFrom(named.contentItem(), keys);
        QTest::keyClick(&named, Qt::Key_F10);
        for (const QString &first : {u"Nouveau ticket"_s, u"Actualiser"_s, u"Apparence"_s}) {
            const auto isOpen = [&] {
                return !spokenIn(named, QAccessible::MenuItem, first).isEmpty();
            };
            EXPECT_TRUE(QTest::qWaitFor(isOpen)) << first.toStdString();
            collectFrom(named.contentItem(), keys);
            QTest::keyClick(&named, Qt::Key_Right);
        }
        QTest::keyClick(&named, Qt::Key_Escape);
        EXPECT_TRUE(
            QTest::qWaitFor([&] { return spokenIn(named, QAccessible::MenuItem).isEmpty(); }));
        keys.removeDuplicates();
        // It is typed into a comment.
        keys.removeAll(u"@"_s);
        return keys;
    }

    /// A summary of all state that a key can change, and of all requests that it can send.
    QString world()
    {
        const auto text = [](const std::optional<QString> &key) { return key.value_or(u"-"_s); };
        QStringList windows;
        for (auto *each : QGuiApplication::topLevelWindows()) {
            if (each->isVisible() && !each->title().isEmpty())
                windows += each->title();
            if (auto *shown = qobject_cast<QQuickWindow *>(each); shown && hasDialog(*shown))
                windows += each->title() + u" with a dialog"_s;
        }
        windows.sort();
        const QList<qsizetype> counts{desktop->copied.size(),
                                      desktop->opened.size(),
                                      service->issuesCalls.count(),
                                      store().checked().size(),
                                      quits->count(),
                                      qsizetype(store().layout()),
                                      store().palette() ? 1 : 0,
                                      store().isCreating() ? 1 : 0};
        QStringList parts{text(store().focusedKey()), text(store().inspectorKey()),
                          windows.join(u';')};
        for (const auto count : counts)
            parts += QString::number(count);
        return parts.join(u'|');
    }

    static bool hasDialog(QQuickWindow &in) { return !spokenIn(in, QAccessible::Dialog).isEmpty(); }

    void restore(LayoutMode layout)
    {
        if (auto *issue = app->scenes().issueWindow(u"MOB-3"_s); issue && hasDialog(*issue))
            QTest::keyClick(issue, Qt::Key_Escape);
        if (auto *settings = app->scenes().settingsWindow())
            settings->close();
        store().closePalette();
        store().setIsCreating(false);
        store().setLayout(layout);
        store().setFocusedKey(u"MOB-1"_s);
        store().setInspectorKey(u"MOB-1"_s);
        store().setChecked({u"MOB-2"_s});
        settle();
    }

    bool doesSomething(const QString &key, QQuickWindow &in)
    {
        const Press press = pressOf(key);
        for (const LayoutMode layout : {LayoutMode::List, LayoutMode::Board}) {
            restore(layout);
            in.requestActivate();
            EXPECT_TRUE(QTest::qWaitForWindowActive(&in));
            const QString before = world();
            pressIn(in, press);
            if (QTest::qWaitFor([&] { return world() != before; }, 300))
                return true;
        }
        return false;
    }

    void expectAllWork(const QStringList &keys, QQuickWindow &in)
    {
        for (const QString &key : keys)
            EXPECT_TRUE(doesSomething(key, in)) << key.toStdString();
    }

    QQuickWindow &issueWindow(const QString &key)
    {
        Q_EMIT store().openWindowRequested(key);
        auto *issue = app->scenes().issueWindow(key);
        EXPECT_TRUE(QTest::qWaitForWindowActive(issue));
        return *issue;
    }

    std::unique_ptr<QSignalSpy> quits;
};

TEST_F(WindowKeys, AllThatTheMainWindowNamesWorkThere)
{
    restore(LayoutMode::List);
    const QStringList keys = keysNamedIn(window());
    for (const QString &key : {u"Ctrl+K"_s, u"Ctrl+R"_s, u"Ctrl+,"_s, u"Ctrl+Q"_s, u"Ctrl+Maj+O"_s,
                               u"Ctrl+Alt+I"_s, u"Échap"_s, u"Ctrl+↩"_s})
        EXPECT_TRUE(keys.contains(key)) << key.toStdString();
    expectAllWork(keys, window());
}

TEST_F(WindowKeys, AllThatAnIssueWindowNamesWorkThere)
{
    auto &issue = issueWindow(u"MOB-3"_s);
    const QStringList keys = keysNamedIn(issue);
    for (const QString &key : {u"Ctrl+K"_s, u"Ctrl+R"_s, u"Ctrl+,"_s, u"Ctrl+Q"_s, u"Ctrl+Maj+O"_s})
        EXPECT_TRUE(keys.contains(key)) << key.toStdString();
    expectAllWork(keys, issue);
}

TEST_F(WindowKeys, InAnIssueWindowTheyTakeItsOwnIssue)
{
    store().setFocusedKey(u"MOB-1"_s);
    store().setChecked({u"MOB-1"_s, u"MOB-2"_s});
    auto &issue = issueWindow(u"MOB-3"_s);

    pressIn(issue, pressOf(u"Ctrl+."_s));
    EXPECT_EQ(lastCopied(), u"MOB-3"_s);
    pressIn(issue, pressOf(u"Ctrl+Maj+,"_s));
    EXPECT_TRUE(lastCopied().endsWith(u"/MOB-3"_s)) << lastCopied().toStdString();
    pressIn(issue, pressOf(u"Ctrl+Maj+."_s));
    EXPECT_TRUE(lastCopied().startsWith(u"feature/MOB-3-"_s)) << lastCopied().toStdString();
    pressIn(issue, pressOf(u"Ctrl+Maj+O"_s));
    ASSERT_EQ(desktop->opened.size(), 1);
    EXPECT_TRUE(desktop->opened.first().path().endsWith(u"/MOB-3"_s));
}

TEST_F(WindowKeys, OnTheFirstScreenTheMenusShortcutsWorkToo)
{
    store().signOut();
    ASSERT_TRUE(QTest::qWaitFor([&] { return store().phase() == AppStore::Phase::SignedOut; }));
    press(Qt::Key_Comma, Qt::ControlModifier);
    EXPECT_TRUE(app->scenes().settingsWindow());
    press(Qt::Key_K, Qt::ControlModifier);
    EXPECT_TRUE(store().palette());
}
