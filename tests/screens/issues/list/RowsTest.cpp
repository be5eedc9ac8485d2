#include "app/WindowFixture.h"
#include "screens/issues/DrawnText.h"
#include "screens/issues/list/RowLine.h"
#include "screens/issues/motion/GlideOffset.h"

#include <QQuickItem>
#include <QTest>

using namespace Qt::StringLiterals;

class Rows : public WindowFixture
{
protected:
    Rows()
    {
        Preferences(preferencesPath).setText(u"ordering"_s, u"key"_s);
        Preferences(preferencesPath).setFlag(u"showCompleted"_s, true);
    }

    void openWith(const IssueList &issues)
    {
        serveIssues(issues);
        openOnDemo();
        desktop->setPrefersReducedMotion(true);
        settle();
    }
    QRect row(const QString &key) { return await(QAccessible::ListItem, key + u',').box; }
    QImage picture(const QRect &box) { return window().grabWindow().copy(box); }
    /// The fill colour of a row, taken from a pixel between its columns.
    QColor fill(const QString &key)
    {
        const auto box = row(key);
        return window().grabWindow().pixelColor(box.left() + 30, box.top() + 4);
    }
    QColor bar(const QString &key)
    {
        const auto box = row(key);
        return window().grabWindow().pixelColor(box.left(), box.center().y());
    }
    /// The most saturated colour within a box.
    static QColor strongest(const QImage &image)
    {
        QColor found = Qt::white;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                if (image.pixelColor(x, y).hsvSaturation() > found.hsvSaturation())
                    found = image.pixelColor(x, y);
            }
        }
        return found;
    }
    /// The row that shows this text as its due date.
    RowLine *rowDue(const QString &text)
    {
        const auto seen = drawnText(window().contentItem(), text);
        return seen ? qobject_cast<RowLine *>(seen->face) : nullptr;
    }
    RowLine *anyRow()
    {
        return qobject_cast<RowLine *>(itemIn(window().contentItem(), [](QQuickItem *item) {
            return qobject_cast<RowLine *>(item) && item->isVisible();
        }));
    }
    bool showsParent()
    {
        return drawnText(window().contentItem(), u"Refonte de la page"_s).has_value();
    }
    template <typename Test>
    static QQuickItem *itemIn(QQuickItem *root, Test test)
    {
        if (test(root))
            return root;
        for (auto *child : root->childItems()) {
            if (auto *found = itemIn(child, test))
                return found;
        }
        return nullptr;
    }
    static int shownCheckMarks(QQuickItem *root)
    {
        const auto kind = QByteArray(root->metaObject()->className());
        int count = kind.startsWith("RowCheckMark") && root->isVisible() ? 1 : 0;
        for (auto *child : root->childItems())
            count += shownCheckMarks(child);
        return count;
    }
    static Issue due(const QString &key, const QString &status, const QDate &day)
    {
        Issue issue = issueWithKey(key, status);
        issue.dueDate = day;
        return issue;
    }
    QDate today() { return store().calendar().day(store().now()); }
};

TEST_F(Rows, AFocusedCheckedAndOpenRowShowsTheCheckedFillAndTheBar)
{
    openWith({issueWithKey(u"MOB-1"_s), issueWithKey(u"MOB-2"_s), issueWithKey(u"MOB-3"_s)});
    const QColor plane = fill(u"MOB-3"_s);
    store().setChecked({u"MOB-1"_s, u"MOB-2"_s});
    store().setFocusedKey(u"MOB-1"_s);
    store().setInspectorKey(u"MOB-1"_s);
    settle();

    EXPECT_EQ(fill(u"MOB-1"_s), fill(u"MOB-2"_s));
    EXPECT_NE(fill(u"MOB-1"_s), plane);
    EXPECT_GT(bar(u"MOB-1"_s).hsvSaturation(), 120);
    EXPECT_LT(bar(u"MOB-2"_s).hsvSaturation(), 60);
}

TEST_F(Rows, TheOpenRowIsStrongerThanTheFocusedOne)
{
    openWith({issueWithKey(u"MOB-1"_s), issueWithKey(u"MOB-2"_s), issueWithKey(u"MOB-3"_s)});
    store().setFocusedKey(u"MOB-1"_s);
    store().setInspectorKey(u"MOB-2"_s);
    settle();

    EXPECT_LT(fill(u"MOB-2"_s).lightness(), fill(u"MOB-1"_s).lightness());
    EXPECT_LT(fill(u"MOB-1"_s).lightness(), fill(u"MOB-3"_s).lightness());
}

TEST_F(Rows, AnIssueDueYesterdayIsLateUnlessItIsClosed)
{
    const QDate yesterday = UserCalendar::system().day(ManualClock().now()).addDays(-1);
    openWith({due(u"MOB-1"_s, u"À faire"_s, yesterday), due(u"MOB-2"_s, u"Terminé"_s, yesterday)});
    ASSERT_EQ(today().addDays(-1), yesterday);
    const auto redIn = [&](const QString &key) {
        auto box = row(key);
        box.setLeft(box.left() + 600);
        box.setRight(box.right() - 90);
        const QColor color = strongest(picture(box));
        return color.hsvSaturation() > 60 && (color.hue() < 20 || color.hue() > 340);
    };

    EXPECT_NE(rowDue(u"Hier"_s), nullptr);
    EXPECT_TRUE(redIn(u"MOB-1"_s));
    EXPECT_FALSE(redIn(u"MOB-2"_s));
}

TEST_F(Rows, InARecapAnIssueWithoutAnEventShowsItsRelativeDateInTheColumnOf54)
{
    serveIssues({issueWithKey(u"MOB-1"_s)});
    openOnDemo();
    store().select(IssueScope::activity({ActivityRange::Week, 0, false}));
    const auto box = row(u"MOB-1"_s);
    const auto text = drawnText(window().contentItem(), u"1 j"_s);
    ASSERT_TRUE(text);

    EXPECT_EQ(text->box().right(), box.right() + 1 - 12);
    const auto assignee = await(QAccessible::Button, u"Assigné : personne"_s).box;
    EXPECT_EQ(assignee.right(), box.right() - 12 - 54 - 10);
}

TEST_F(Rows, AnIssueDueTodayIsNotLate)
{
    const QDate day = UserCalendar::system().day(ManualClock().now());
    openWith({due(u"MOB-1"_s, u"À faire"_s, day)});

    const auto *row = rowDue(u"Aujourd'hui"_s);
    ASSERT_NE(row, nullptr);
    EXPECT_FALSE(row->property("isOverdue").toBool());
}

TEST_F(Rows, ADueDateFollowsTheTimeZoneThatTheSystemHasChangedTo)
{
    // Two time zones whose dates differ by one day at every instant.
    const QLocale french(QLocale::French, QLocale::France);
    const UserCalendar west{french, QTimeZone("Pacific/Pago_Pago")};
    const UserCalendar east{french, QTimeZone("Pacific/Tongatapu")};
    openWith({due(u"MOB-1"_s, u"À faire"_s, west.day(ManualClock().now()))});
    calendar->change(west);
    settle();
    EXPECT_NE(rowDue(u"Aujourd'hui"_s), nullptr);

    calendar->change(east);
    settle();
    EXPECT_NE(rowDue(u"Hier"_s), nullptr);
}

TEST_F(Rows, ANarrowWindowDropsParentThenLabelNamesThenTheDueText)
{
    Issue issue = due(u"MOB-1"_s, u"À faire"_s, {2026, 12, 24});
    issue.summary = u"Connexion avec Apple : le jeton expire après 24 h"_s;
    issue.labels = {u"authentification"_s, u"ios"_s, u"a"_s, u"b"_s, u"c"_s};
    issue.parent = IssueRef{};
    issue.parent->summary = u"Refonte de la page"_s;
    openWith({issue});
    window().setMinimumSize({0, 0});
    const auto at = [&](int width) {
        window().resize(width, 840);
        settle();
    };

    at(1320);
    EXPECT_TRUE(showsParent());
    EXPECT_TRUE(anyRow()->plan().showsLabelNames);
    EXPECT_NE(rowDue(u"24 déc."_s), nullptr);
    at(1040);
    EXPECT_FALSE(showsParent());
    EXPECT_TRUE(anyRow()->plan().showsLabelNames);
    at(860);
    EXPECT_FALSE(anyRow()->plan().showsLabelNames);
    EXPECT_NE(rowDue(u"24 déc."_s), nullptr);
    at(530);
    EXPECT_FALSE(anyRow()->plan().showsDueText);
    EXPECT_EQ(rowDue(u"24 déc."_s), nullptr);
}

TEST_F(Rows, TheCheckBoxesOfAllRowsAreShownWhileAnyIssueIsChecked)
{
    openWith({issueWithKey(u"MOB-1"_s, u"À faire"_s), issueWithKey(u"MOB-2"_s, u"À faire"_s),
              issueWithKey(u"MOB-3"_s, u"À faire"_s)});
    const auto shown = [&] { return shownCheckMarks(window().contentItem()); };
    press(Qt::Key_J);
    for (int turn = 0; turn < 3; ++turn) {
        press(Qt::Key_X);
        EXPECT_EQ(shown(), 3);
        press(Qt::Key_X);
        EXPECT_TRUE(QTest::qWaitFor([&] { return shown() == 0; }));
    }
}

TEST_F(Rows, ACompactListHasLowerRowsAndHeaders)
{
    openWith({issueWithKey(u"MOB-1"_s), issueWithKey(u"MOB-2"_s)});
    EXPECT_EQ(row(u"MOB-1"_s), QRect(252, 92, 1056, 38));

    store().setDensity(RowDensity::Compact);
    settle();

    EXPECT_EQ(row(u"MOB-1"_s), QRect(252, 86, 1056, 31));
    EXPECT_EQ(row(u"MOB-2"_s).top(), 117);
}

TEST_F(Rows, TheHeaderOfTheRowsAtTheTopStaysWhileTheyScroll)
{
    IssueList many;
    for (int i = 1; i <= 60; ++i)
        many += issueWithKey(u"MOB-%1"_s.arg(i));
    openWith(many);
    // Without its first pixels, on which a button of the toolbar casts its shadow.
    const QRect header(252, 60, 1056, 32);
    const QImage before = picture(header);
    QWheelEvent wheel({700, 400}, window().mapToGlobal(QPointF(700, 400)), {}, {0, -1200},
                      Qt::NoButton, {}, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&window(), &wheel);

    EXPECT_TRUE(QTest::qWaitFor([&] { return !rowsShown().contains(u"MOB-1"_s); }));
    settle();
    EXPECT_EQ(picture(header), before);
}

TEST_F(Rows, AChangeOfGroupEndsWithTheRowInItsNewPlace)
{
    openWith({issueWithKey(u"MOB-1"_s), issueWithKey(u"MOB-2"_s),
              issueWithKey(u"MOB-3"_s, u"En cours"_s)});
    desktop->setPrefersReducedMotion(false);
    service->performCalls.answerWith();
    service->transitionsCalls.answerWith(
        {{u"11"_s, u"Commencer"_s, IssueStatus::guessed(u"En cours"_s)}});
    store().setStatus(IssueStatus::guessed(u"En cours"_s), {u"MOB-2"_s});

    EXPECT_TRUE(QTest::qWaitFor(
        [&] { return rowsShown() == QStringList{u"MOB-2"_s, u"MOB-3"_s, u"MOB-1"_s}; }));
    EXPECT_TRUE(QTest::qWaitFor([&] { return row(u"MOB-2"_s) == QRect(252, 92, 1056, 38); }));
    EXPECT_TRUE(QTest::qWaitFor([&] { return row(u"MOB-1"_s) == QRect(252, 204, 1056, 38); }));
}

class Motion : public Rows
{
protected:
    void openWithMotion()
    {
        openWith({issueWithKey(u"MOB-1"_s), issueWithKey(u"MOB-2"_s), issueWithKey(u"MOB-3"_s),
                  issueWithKey(u"MOB-4"_s, u"En cours"_s)});
        desktop->setPrefersReducedMotion(false);
        settle();
        service->performCalls.answerWith();
        service->transitionsCalls.answerWith(
            {{u"11"_s, u"Commencer"_s, IssueStatus::guessed(u"En cours"_s)},
             {u"12"_s, u"Reprendre"_s, IssueStatus::guessed(u"À faire"_s)}});
    }
    void take(const QString &key, const QString &status)
    {
        store().setStatus(IssueStatus::guessed(status), {key});
    }
    /// The distance between the drawn position of a row and its final position.
    double offset(const QString &key)
    {
        auto *item = itemIn(window().contentItem(), [&](QQuickItem *candidate) {
            return candidate->isVisible() && candidate->property("glideKey").toString() == key;
        });
        return item ? GlideOffset::of(*item).offset().y() : 0;
    }
    bool isAtRest()
    {
        return std::ranges::all_of(QStringList{u"MOB-1"_s, u"MOB-2"_s, u"MOB-3"_s, u"MOB-4"_s},
                                   [this](const QString &key) { return offset(key) == 0; });
    }
};

TEST_F(Motion, ARowThatChangesItsGroupIsDrawnFromItsOldPlaceToTheNew)
{
    openWithMotion();
    const QRect before = row(u"MOB-2"_s);
    take(u"MOB-2"_s, u"En cours"_s);

    EXPECT_TRUE(QTest::qWaitFor([&] { return offset(u"MOB-2"_s) > 0; }));
    EXPECT_LE(offset(u"MOB-2"_s), before.top() - 92);
    EXPECT_TRUE(QTest::qWaitFor([&] { return isAtRest(); }));
    EXPECT_EQ(row(u"MOB-2"_s), QRect(252, 92, 1056, 38));
}

TEST_F(Motion, TwoChangesInQuickSuccessionEndWithEveryRowAtItsPlace)
{
    openWithMotion();
    take(u"MOB-2"_s, u"En cours"_s);
    ASSERT_TRUE(QTest::qWaitFor([&] { return offset(u"MOB-2"_s) != 0; }));
    take(u"MOB-3"_s, u"En cours"_s);
    ASSERT_TRUE(QTest::qWaitFor([&] { return offset(u"MOB-3"_s) != 0; }));
    EXPECT_FALSE(isAtRest());
    take(u"MOB-2"_s, u"À faire"_s);

    EXPECT_TRUE(QTest::qWaitFor([&] {
        return rowsShown() == QStringList{u"MOB-3"_s, u"MOB-4"_s, u"MOB-1"_s, u"MOB-2"_s};
    }));
    EXPECT_TRUE(QTest::qWaitFor([&] { return isAtRest(); }));
    EXPECT_EQ(row(u"MOB-3"_s), QRect(252, 92, 1056, 38));
    EXPECT_EQ(row(u"MOB-4"_s), QRect(252, 130, 1056, 38));
    EXPECT_EQ(row(u"MOB-1"_s), QRect(252, 204, 1056, 38));
    EXPECT_EQ(row(u"MOB-2"_s), QRect(252, 242, 1056, 38));
}

TEST_F(Motion, AnInterruptedMoveGoesOnFromWhereTheRowIsSeen)
{
    openWithMotion();
    take(u"MOB-2"_s, u"En cours"_s);
    ASSERT_TRUE(QTest::qWaitFor([&] { return offset(u"MOB-2"_s) > 0 && offset(u"MOB-2"_s) < 60; }));
    const int seen = row(u"MOB-2"_s).top();
    take(u"MOB-2"_s, u"À faire"_s);
    ASSERT_TRUE(QTest::qWaitFor([&] { return offset(u"MOB-2"_s) < 0; }));

    EXPECT_NEAR(row(u"MOB-2"_s).top(), seen, 40);
}

TEST_F(Motion, FoldingAGroupMovesTheRowsBelowIt)
{
    openWithMotion();
    const auto group = store().groups().first().id;
    store().toggleGroup(group);

    EXPECT_TRUE(QTest::qWaitFor([&] { return offset(u"MOB-1"_s) > 0; }));
    EXPECT_TRUE(QTest::qWaitFor([&] { return isAtRest(); }));
    EXPECT_EQ(row(u"MOB-1"_s).top(), 128);
}

TEST_F(Motion, WhatChangedWhileTheBoardWasShownIsNoMotionOfTheList)
{
    openWithMotion();
    store().setLayout(LayoutMode::Board);
    settle();
    take(u"MOB-2"_s, u"En cours"_s);
    settle();
    store().setLayout(LayoutMode::List);
    for (int frame = 0; frame < 5; ++frame) {
        settle();
        EXPECT_TRUE(isAtRest());
    }
}

TEST_F(Motion, WhoWantsLessMotionSeesNone)
{
    openWithMotion();
    desktop->setPrefersReducedMotion(true);
    settle();
    take(u"MOB-2"_s, u"En cours"_s);

    EXPECT_TRUE(QTest::qWaitFor([&] {
        return rowsShown() == QStringList{u"MOB-2"_s, u"MOB-4"_s, u"MOB-1"_s, u"MOB-3"_s};
    }));
    EXPECT_TRUE(isAtRest());
}

TEST_F(Motion, ASearchMovesNothing)
{
    openWithMotion();
    store().setFilterText(u"MOB-3"_s);

    EXPECT_TRUE(QTest::qWaitFor([&] { return rowsShown() == QStringList{u"MOB-3"_s}; }));
    EXPECT_TRUE(isAtRest());
}
