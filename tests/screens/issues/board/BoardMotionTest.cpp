#include "app/WindowFixture.h"
#include "screens/issues/board/CardFace.h"
#include "screens/issues/motion/GlideOffset.h"

#include <QTest>

using namespace Qt::StringLiterals;

/// Cards that move between columns, animated unless the desktop asks for reduced motion.
class BoardMotion : public WindowFixture
{
protected:
    BoardMotion()
    {
        Preferences preferences(preferencesPath);
        preferences.setText(u"ordering"_s, u"key"_s);
        preferences.setText(u"layout"_s, u"board"_s);
        serveIssues({issueWithKey(u"MOB-1"_s), issueWithKey(u"MOB-2"_s),
                     issueWithKey(u"MOB-3"_s, u"En cours"_s)});
        openOnDemo();
        desktop->setPrefersReducedMotion(false);
        service->performCalls.answerWith();
        service->transitionsCalls.answerWith(
            {{u"11"_s, u"Commencer"_s, IssueStatus::guessed(u"En cours"_s)},
             {u"12"_s, u"Reprendre"_s, IssueStatus::guessed(u"À faire"_s)}});
        await(QAccessible::List, u"En cours, 1 ticket"_s);
        settle();
    }

    void take(const QString &key, const QString &status)
    {
        store().setStatus(IssueStatus::guessed(status), {key});
    }
    QList<CardFace *> faces(const QString &key)
    {
        QList<CardFace *> found;
        QList<QQuickItem *> left{window().contentItem()};
        while (!left.isEmpty()) {
            auto *item = left.takeFirst();
            if (!item->isVisible())
                continue;
            left += item->childItems();
            auto *face = qobject_cast<CardFace *>(item);
            if (face && face->issue().key == key)
                found += face;
        }
        return found;
    }
    /// The card itself, which is a child of its column.
    CardFace *card(const QString &key) { return faceWith(key, true); }
    /// The copy of a card that is visible while the card moves.
    CardFace *ghost(const QString &key) { return faceWith(key, false); }
    bool isAtRest(const QString &key)
    {
        const auto all = faces(key);
        return all.size() == 1 && all.first()->opacity() == 1 &&
               GlideOffset::of(*all.first()).offset().isNull();
    }
    bool isOnItsWay(const QString &key)
    {
        return ghost(key) && card(key) && !GlideOffset::of(*card(key)).offset().isNull();
    }

private:
    CardFace *faceWith(const QString &key, bool isCard)
    {
        for (auto *face : faces(key)) {
            if (face->property("glideKey").isValid() == isCard)
                return face;
        }
        return nullptr;
    }
};

TEST_F(BoardMotion, ACardOnItsWayBetweenColumnsIsSeenAboveThem)
{
    take(u"MOB-1"_s, u"En cours"_s);
    ASSERT_TRUE(QTest::qWaitFor([&] { return isOnItsWay(u"MOB-1"_s); }));

    auto *seen = ghost(u"MOB-1"_s);
    EXPECT_EQ(seen->opacity(), 1);
    EXPECT_LT(card(u"MOB-1"_s)->opacity(), 1 / 255.0) << "seen once";
    EXPECT_EQ(seen->size(), card(u"MOB-1"_s)->size());
    EXPECT_EQ(seen->mapToScene({}), card(u"MOB-1"_s)->mapToScene({}));
    // Only the board itself clips it.
    for (auto *around = seen->parentItem(); around; around = around->parentItem())
        EXPECT_TRUE(!around->clip() || around->width() > 900);
    EXPECT_FALSE(ghost(u"MOB-2"_s)) << "it stays in its column";
}

TEST_F(BoardMotion, OnItsWayACardIsStillSpokenOnce)
{
    take(u"MOB-1"_s, u"En cours"_s);
    ASSERT_TRUE(QTest::qWaitFor([&] { return isOnItsWay(u"MOB-1"_s); }));

    EXPECT_EQ(spokenIn(window(), QAccessible::ListItem, u"MOB-1,"_s).size(), 1);
}

TEST_F(BoardMotion, OnceItHasArrivedOnlyTheCardIsLeft)
{
    take(u"MOB-1"_s, u"En cours"_s);
    ASSERT_TRUE(QTest::qWaitFor([&] { return isOnItsWay(u"MOB-1"_s); }));

    EXPECT_TRUE(QTest::qWaitFor([&] { return isAtRest(u"MOB-1"_s); }));
}

TEST_F(BoardMotion, AnInterruptedCardGoesOnFromWhereItIsSeenAndLeavesNothingBehind)
{
    const double start = card(u"MOB-1"_s)->mapToScene({}).x();
    take(u"MOB-1"_s, u"En cours"_s);
    ASSERT_TRUE(QTest::qWaitFor([&] {
        return isOnItsWay(u"MOB-1"_s) && ghost(u"MOB-1"_s)->mapToScene({}).x() > start + 20;
    }));
    take(u"MOB-1"_s, u"À faire"_s);
    ASSERT_TRUE(QTest::qWaitFor(
        [&] { return isOnItsWay(u"MOB-1"_s) && store().board()->columnOfKey(u"MOB-1"_s) == 0; }));
    EXPECT_GT(ghost(u"MOB-1"_s)->mapToScene({}).x(), start);

    EXPECT_TRUE(QTest::qWaitFor([&] { return isAtRest(u"MOB-1"_s); }));
    EXPECT_EQ(card(u"MOB-1"_s)->mapToScene({}).x(), start);
}

TEST_F(BoardMotion, ACardThatAReloadTakesAwayOnItsWayLeavesNothingBehind)
{
    take(u"MOB-1"_s, u"En cours"_s);
    ASSERT_TRUE(QTest::qWaitFor([&] { return isOnItsWay(u"MOB-1"_s); }));
    serveIssues({issueWithKey(u"MOB-2"_s), issueWithKey(u"MOB-3"_s, u"En cours"_s)});
    reload();

    EXPECT_TRUE(QTest::qWaitFor([&] { return faces(u"MOB-1"_s).isEmpty(); }));
    EXPECT_TRUE(QTest::qWaitFor([&] { return isAtRest(u"MOB-2"_s) && isAtRest(u"MOB-3"_s); }));
}

TEST_F(BoardMotion, TheListTakesThePlaceOfABoardInMotion)
{
    take(u"MOB-1"_s, u"En cours"_s);
    ASSERT_TRUE(QTest::qWaitFor([&] { return isOnItsWay(u"MOB-1"_s); }));
    press(Qt::Key_1);
    press(Qt::Key_2);

    EXPECT_TRUE(QTest::qWaitFor([&] { return isAtRest(u"MOB-1"_s); }));
}
