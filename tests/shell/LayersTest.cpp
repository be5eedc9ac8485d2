#include "app/WindowFixture.h"
#include "async/Spawn.h"
#include "screens/kit/layers/WindowLayers.h"

#include <QAccessible>
#include <QGuiApplication>
#include <QQuickItem>
#include <QRandomGenerator>
#include <QTest>

using namespace Qt::StringLiterals;

/// The palette, pickers and menus above the list and the board: what they receive, and what they keep from those below.
class Layers : public WindowFixture
{
protected:
    Layers()
    {
        Preferences(preferencesPath).setText(u"ordering"_s, u"key"_s);
        Preferences(preferencesPath).setText(u"grouping"_s, u"none"_s);
        serveStatuses({u"En cours"_s, u"En revue"_s});
        service->performCalls.answerWith();
        service->updateCalls.answerWith();
        service->assignCalls.answerWith();
        openOnDemo();
        service->transitionsCalls.answerWith(
            {{u"11"_s, u"Commencer"_s, IssueStatus::guessed(u"En cours"_s)},
             {u"12"_s, u"Relire"_s, IssueStatus::guessed(u"En revue"_s)}});
        desktop->setPrefersReducedMotion(true);
        press(Qt::Key_Down);
        settle();
    }

    /// Serves 60 issues. The last ones have these statuses, which are then offered for all; the others are to be done.
    void serveStatuses(const QStringList &names)
    {
        IssueList issues;
        for (int i = 1; i <= 60; ++i) {
            const int last = i - 61 + int(names.size());
            issues += issueWithKey(u"MOB-%1"_s.arg(i), last < 0 ? u"À faire"_s : names[last]);
        }
        serveIssues(issues);
    }

    Layer *top() { return WindowLayers::of(window()).top(); }
    bool isOnTop(const QQuickItem *item) { return top() && top()->item() == item; }
    bool isContentOnTop() { return top() && top()->kind() == Layer::Kind::Content; }
    bool becomesContent()
    {
        return QTest::qWaitFor([this] { return isContentOnTop(); });
    }
    Spoken row(const QString &key) { return await(QAccessible::ListItem, key + u','); }
    void openPalette()
    {
        press(Qt::Key_K, Qt::ControlModifier);
        ASSERT_TRUE(store().palette());
        settle();
    }
    void openRowPicker()
    {
        const auto cells = spokenIn(window(), QAccessible::Button, u"Statut :"_s);
        ASSERT_FALSE(cells.isEmpty());
        click(cells.first());
        await(QAccessible::EditableText, u"Statut…"_s);
    }
    void wheel(QPointF place)
    {
        QWheelEvent event(place, window().mapToGlobal(place), {}, {0, -120}, {}, {}, {}, false);
        QCoreApplication::sendEvent(&window(), &event);
    }
    void repeat(Qt::Key key, const QString &text)
    {
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier, text, true);
        QCoreApplication::sendEvent(&window(), &event);
    }
    Issue issue(const QString &key) { return *store().issue(key).value_or(SharedIssue()); }
};

namespace {

QAccessibleInterface *nodeOf(QAccessibleInterface *node, QAccessible::Role role,
                             const QString &name)
{
    if (!node || (node->role() == role && node->text(QAccessible::Name).contains(name)))
        return node;
    for (int i = 0; i < node->childCount(); ++i) {
        if (auto *found = nodeOf(node->child(i), role, name))
            return found;
    }
    return nullptr;
}

/// Presses a control as a screen reader does, whatever is above it.
void pressByReader(QQuickWindow &window, QAccessible::Role role, const QString &name)
{
    auto *node = nodeOf(QAccessible::queryAccessibleInterface(&window), role, name);
    ASSERT_NE(node, nullptr) << name.toStdString();
    node->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
}

} // namespace

TEST_F(Layers, ARightClickBesideThePaletteOpensNoMenu)
{
    const auto box = row(u"MOB-20"_s).box;
    openPalette();
    QTest::mouseClick(&window(), Qt::RightButton, {}, box.center());
    settle();

    EXPECT_TRUE(spokenIn(window(), QAccessible::MenuItem, u"Copier la clé"_s).isEmpty());
    EXPECT_TRUE(store().palette());
}

TEST_F(Layers, TheWheelBesideThePaletteScrollsNothing)
{
    openPalette();
    const auto before = row(u"MOB-1"_s).box;
    wheel({before.center().x() + 0.0, window().height() - 60.0});
    settle();

    EXPECT_EQ(row(u"MOB-1"_s).box, before);
}

TEST_F(Layers, EscapeClosesAMenuAboveThePaletteFirst)
{
    openPalette();
    pressByReader(window(), QAccessible::Button, u"Espace"_s);
    await(QAccessible::MenuItem, u"Réglages…"_s);
    press(Qt::Key_Escape);
    EXPECT_TRUE(isGone(QAccessible::MenuItem, u"Réglages…"_s));
    EXPECT_TRUE(store().palette());

    const auto focused = store().focusedKey();
    press(Qt::Key_Down);
    press(Qt::Key_X);
    EXPECT_EQ(store().focusedKey(), focused);
    EXPECT_EQ(store().checkedCount(), 0);

    press(Qt::Key_Escape);
    press(Qt::Key_Escape);
    EXPECT_FALSE(store().palette());
    press(Qt::Key_J);
    EXPECT_NE(store().focusedKey(), focused) << "the window has gone deaf";
}

TEST_F(Layers, TabStaysInThePickerOfARow)
{
    openRowPicker();
    const auto focused = store().focusedKey();
    for (int i = 0; i < 5; ++i) {
        press(Qt::Key_Tab);
        press(Qt::Key_J);
    }
    EXPECT_EQ(store().focusedKey(), focused);

    press(Qt::Key_Escape);
    EXPECT_TRUE(becomesContent());
    press(Qt::Key_J);
    EXPECT_NE(store().focusedKey(), focused);
}

TEST_F(Layers, APressOnAnotherRowOnlyClosesThePicker)
{
    openRowPicker();
    click(row(u"MOB-20"_s));
    EXPECT_TRUE(becomesContent());
    settle();

    EXPECT_EQ(store().inspectorKey(), std::nullopt);
    EXPECT_EQ(store().focusedKey(), u"MOB-1"_s);
}

TEST_F(Layers, TheWheelBelowAPickerScrollsNothing)
{
    openRowPicker();
    const auto before = row(u"MOB-20"_s).box;
    wheel(before.center());
    settle();

    EXPECT_EQ(row(u"MOB-20"_s).box, before);
}

TEST_F(Layers, AHeldDigitPicksOnceAndDoesNothingElse)
{
    press(Qt::Key_S);
    ASSERT_TRUE(store().palette());
    settle();
    QKeyEvent first(QEvent::KeyPress, Qt::Key_2, Qt::NoModifier, u"2"_s);
    QCoreApplication::sendEvent(&window(), &first);
    for (int i = 0; i < 20; ++i)
        repeat(Qt::Key_2, u"2"_s);

    EXPECT_EQ(issue(u"MOB-1"_s).status.name(), u"En cours"_s);
    EXPECT_FALSE(store().palette());
    EXPECT_EQ(store().layout(), LayoutMode::List);
}

TEST_F(Layers, AHeldLetterWalksButDoesNotCheckAgainAndAgain)
{
    QKeyEvent first(QEvent::KeyPress, Qt::Key_X, Qt::NoModifier, u"x"_s);
    QCoreApplication::sendEvent(&window(), &first);
    for (int i = 0; i < 3; ++i)
        repeat(Qt::Key_X, u"x"_s);
    EXPECT_TRUE(store().checked().contains(u"MOB-1"_s));

    QKeyEvent step(QEvent::KeyPress, Qt::Key_J, Qt::NoModifier, u"j"_s);
    QCoreApplication::sendEvent(&window(), &step);
    for (int i = 0; i < 3; ++i)
        repeat(Qt::Key_J, u"j"_s);
    EXPECT_EQ(store().focusedKey(), u"MOB-5"_s);
}

TEST_F(Layers, AMenuCarriesOutWhatItShowsEvenIfItIsNoLongerOffered)
{
    rightClick(row(u"MOB-1"_s));
    click(await(QAccessible::MenuItem, u"Statut"_s));
    const auto entry = await(QAccessible::MenuItem, u"En revue"_s);
    serveStatuses({u"En cours"_s});
    reload();
    settle();
    click(entry);

    EXPECT_EQ(issue(u"MOB-1"_s).status.name(), u"En revue"_s);
}

/// Random keys and presses, with layers that open and close.
class LayerWalk : public Layers
{
protected:
    auto state()
    {
        return std::tuple(store().focusedKey(), store().inspectorKey(), store().layout(),
                          store().checkedCount(), store().scope());
    }

    void pressAKey()
    {
        static const QList<Qt::Key> keys{
            Qt::Key_J,    Qt::Key_K,      Qt::Key_X,      Qt::Key_S,   Qt::Key_P,    Qt::Key_A,
            Qt::Key_L,    Qt::Key_1,      Qt::Key_2,      Qt::Key_Tab, Qt::Key_Up,   Qt::Key_Down,
            Qt::Key_Left, Qt::Key_Escape, Qt::Key_Escape, Qt::Key_F10, Qt::Key_Menu, Qt::Key_C};
        const auto before = state();
        const bool isCovered = !isContentOnTop();
        const auto key = keys[random.bounded(int(keys.size()))];
        if (random.bounded(8) == 0)
            press(Qt::Key_K, Qt::ControlModifier);
        else
            press(key);
        if (isCovered)
            ASSERT_EQ(state(), before) << "key " << key << " reached a layer below";
    }
    void clickSomewhere()
    {
        const auto before = state();
        // Suggestions leave the focus in the text. They do not cover what is beside them.
        const bool isCovered = !isContentOnTop() && top() && !top()->leavesFocus();
        const auto *item = isCovered ? top()->item() : nullptr;
        const QPoint place(random.bounded(window().width()), random.bounded(window().height()));
        const bool isBeside = item && !item->contains(item->mapFromScene(place));
        const auto button = random.bounded(3) ? Qt::LeftButton : Qt::RightButton;
        QTest::mouseClick(&window(), button, {}, place);
        if (isBeside)
            ASSERT_EQ(state(), before)
                << "a press of " << button << " at " << place.x() << "," << place.y() << " beside "
                << item->metaObject()->className();
    }
    /// The menu of the site ends the session, and a window that a menu opens takes the keyboard.
    void comeBack()
    {
        if (store().phase() != AppStore::Phase::Ready)
            spawn(store().startDemo());
        if (QGuiApplication::focusWindow() != &window()) {
            window().requestActivate();
            ASSERT_TRUE(QTest::qWaitForWindowActive(&window()));
        }
        ASSERT_TRUE(QTest::qWaitFor([&] { return store().phase() == AppStore::Phase::Ready; }));
    }
    void expectAnAnswer()
    {
        for (int i = 0; i < 12 && !isContentOnTop(); ++i) {
            press(Qt::Key_Escape);
            settle();
        }
        ASSERT_TRUE(isContentOnTop());
        // Escape leaves the search field. What was typed there, the chosen filters and folded groups may have left no
        // issues.
        press(Qt::Key_Escape);
        store().setFilterText({});
        store().setFilters({});
        for (const QString &id : QSet(store().collapsedGroups()))
            store().toggleGroup(id);
        store().setFocusedKey(u"MOB-1"_s);
        settle();
        press(Qt::Key_J);
        const auto *holder = window().activeFocusItem();
        ASSERT_NE(store().focusedKey(), u"MOB-1"_s)
            << "the window has gone deaf: the focus is on "
            << (holder ? holder->metaObject()->className() : "nothing") << ", the issues are "
            << rowsShown().join(u", "_s).toStdString();
    }

    QRandomGenerator random;
};

TEST_F(LayerWalk, NeverReachesALayerBelowTheTopmostAndNeverEndsWithADeafWindow)
{
    // More seeds and steps than each run of the tests can afford.
    const int seeds = qEnvironmentVariableIntValue("VELMORA_LAYER_SEEDS");
    const int first = std::max(1, qEnvironmentVariableIntValue("VELMORA_LAYER_FIRST"));
    const int steps = seeds > 0 ? 1000 : 200;
    for (int seed = first; seed <= (seeds > 0 ? seeds : 3); ++seed) {
        random.seed(quint32(seed));
        for (int step = 0; step < steps; ++step) {
            if (random.bounded(3) > 0)
                pressAKey();
            else
                clickSomewhere();
            ASSERT_FALSE(hasWarned()) << "seed " << seed << ", step " << step;
            ASSERT_FALSE(HasFailure()) << "seed " << seed << ", step " << step;
            comeBack();
        }
        expectAnAnswer();
        ASSERT_FALSE(HasFailure()) << "seed " << seed;
    }
}
