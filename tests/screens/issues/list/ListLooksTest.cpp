#include "app/WindowFixture.h"
#include "screens/issues/DrawnText.h"

#include <QQuickItem>
#include <QTest>

using namespace Qt::StringLiterals;

class ListLooks : public WindowFixture
{
protected:
    ListLooks()
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
    template <typename Test>
    QQuickItem *waitForItem(Test test)
    {
        QQuickItem *found = nullptr;
        EXPECT_TRUE(QTest::qWaitFor([&] { return found = itemIn(window().contentItem(), test); }));
        return found;
    }
    static bool isText(const QQuickItem *item, const QString &text)
    {
        const bool isShown = item->inherits("QQuickText") || item->inherits("QQuickTextEdit");
        return isShown && item->isVisible() && item->property("text").toString() == text;
    }
    /// Something is drawn at the left end of a text of a row or a card.
    bool beginsWithInk(const QString &text)
    {
        const auto drawn = drawnText(window().contentItem(), text);
        if (!drawn)
            return false;
        const QRect start(drawn->box().topLeft().toPoint(), QSize(12, int(drawn->caption.height)));
        const QImage picture = window().grabWindow().copy(start);
        const QRgb ground = picture.pixel(0, 0);
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x) {
                if (picture.pixel(x, y) != ground)
                    return true;
            }
        }
        return false;
    }
    static bool isAlignedLeft(const QQuickItem *text)
    {
        return text && text->property("effectiveHorizontalAlignment").toInt() == Qt::AlignLeft;
    }
    static QQuickItem *chevronIn(QQuickItem *header)
    {
        return itemIn(header, [](const QQuickItem *item) {
            return item->property("name").toString() == u"chevron.right"_s;
        });
    }
};

TEST_F(ListLooks, InARecapWithEventsAndDatesTheAssigneesStandInOneColumn)
{
    Issue changed = issueWithKey(u"MOB-1"_s);
    changed.activity = {{changed.updated, {}, ActivityEvent::Created{}}};
    serveIssues({changed, issueWithKey(u"MOB-2"_s)});
    openOnDemo();
    store().select(IssueScope::activity({ActivityRange::Week, 0, false}));
    const auto box = row(u"MOB-1"_s);
    row(u"MOB-2"_s);

    const auto cells = spokenIn(window(), QAccessible::Button, u"Assigné : personne"_s);
    ASSERT_EQ(cells.size(), 2);
    EXPECT_EQ(cells[0].box.left(), cells[1].box.left());
    EXPECT_EQ(cells[0].box.right(), box.right() - 12 - 132 - 10);
}

TEST_F(ListLooks, ALineBreakInASummaryIsShownAsABlank)
{
    Issue issue = issueWithKey(u"MOB-1"_s);
    issue.summary = u"Première\nseconde"_s;
    openWith({issue});
    await(QAccessible::ListItem, u"MOB-1,"_s);

    EXPECT_TRUE(drawnText(window().contentItem(), u"Première seconde"_s));
}

TEST_F(ListLooks, ARightToLeftSummaryBeginsAtTheLeftLikeTheOthers)
{
    const QString summary = u"שלום עולם"_s;
    Issue issue = issueWithKey(u"MOB-1"_s);
    issue.summary = summary;
    openWith({issue});
    EXPECT_TRUE(beginsWithInk(summary));

    store().setInspectorKey(u"MOB-1"_s);
    const auto *title = waitForItem(
        [&](const QQuickItem *item) { return isText(item, summary) && item->width() > 300; });
    EXPECT_TRUE(isAlignedLeft(title));

    store().setInspectorKey(std::nullopt);
    store().setLayout(LayoutMode::Board);
    settle();
    EXPECT_TRUE(beginsWithInk(summary));
}

TEST_F(ListLooks, TheChevronOfThePinnedHeaderDoesNotTurnWhenTheHeaderShowsAnotherGroup)
{
    IssueList many{issueWithKey(u"WEB-1"_s, u"En cours"_s)};
    for (int i = 1; i <= 60; ++i)
        many += issueWithKey(u"MOB-%1"_s.arg(i));
    openWith(many);
    store().toggleGroup(store().groups().first().id);
    settle();
    desktop->setPrefersReducedMotion(false);
    auto *list = waitForItem([](const QQuickItem *item) {
        return item->inherits("QQuickListView") && item->isVisible() &&
               item->property("count").toInt() > 60;
    });
    auto *pinned = itemIn(window().contentItem(), [](const QQuickItem *item) {
        return item->property("isPinned").toBool();
    });
    ASSERT_TRUE(list && pinned);
    const auto *chevron = chevronIn(pinned);
    ASSERT_NE(chevron, nullptr);
    const double start = list->property("contentY").toDouble();
    list->setProperty("contentY", start + 10);
    ASSERT_TRUE(QTest::qWaitFor([&] { return chevron->rotation() == 0; }));

    list->setProperty("contentY", start + 50);

    EXPECT_EQ(chevron->rotation(), 90);
}

TEST_F(ListLooks, TheChevronTurnsWhileItsGroupIsFolded)
{
    openWith({issueWithKey(u"MOB-1"_s), issueWithKey(u"MOB-2"_s)});
    desktop->setPrefersReducedMotion(false);
    const QString group = store().groups().first().id;
    auto *header = waitForItem([&](const QQuickItem *item) {
        return item->property("glideKey").toString() == u"h:"_s + group;
    });
    ASSERT_NE(header, nullptr);
    const auto *chevron = chevronIn(header);
    ASSERT_EQ(chevron->rotation(), 90);

    store().toggleGroup(group);

    EXPECT_TRUE(
        QTest::qWaitFor([&] { return chevron->rotation() < 90 && chevron->rotation() > 0; }));
    EXPECT_TRUE(QTest::qWaitFor([&] { return chevron->rotation() == 0; }));
}
