#include "screens/detail/activity/ActivityPage.h"

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

class ActivitySectionTest : public ActivityPage
{
protected:
    Comment by(const QString &name, const QString &id) const
    {
        Comment comment = reply(id);
        comment.author = sampleUser(name, name);
        return comment;
    }
    Comment withLink(const QString &id) const
    {
        const ADFMark link{u"link"_s,
                           ADFAttributes{{u"href"_s, JSONValue(u"https://exemple.fr/"_s)}}};
        Comment comment = reply(id);
        comment.body =
            ADF::document({ADF::container(u"paragraph", {ADF::text(u"la page"_s, {link})})});
        return comment;
    }
    static QString said(const QString &name) { return name + u" a commenté il y a 1 h"_s; }
    QQuickItem *body(QQuickItem *bubble) { return named(bubble, u"Commentaire"_s); }
    QString link() const { return page->property("link").toString(); }
    QRectF revealed() const { return page->property("revealed").toRectF(); }
};

TEST_F(ActivitySectionTest, ItShowsTheCreationAndEveryComment)
{
    startSession();
    serve({reply(u"1"_s), note(u"2"_s)}, u"SUP-41"_s, true);
    open();
    EXPECT_NE(named(u"Activité"_s), nullptr);
    EXPECT_NE(named(u"Basile Rochat a créé le ticket il y a 4 j"_s), nullptr);
    ASSERT_EQ(bubbles().size(), 2);
    EXPECT_EQ(nameOf(bubbles().first()),
              u"Elsa Karoubi a commenté il y a 1 h, visible par le client"_s);
    EXPECT_EQ(nameOf(bubbles().last()), u"Elsa Karoubi a commenté il y a 1 h, note interne"_s);
}

TEST_F(ActivitySectionTest, OutsideAServiceProjectWithoutNotesThereIsNoPicker)
{
    startSession();
    serve({reply(u"1"_s)});
    open();
    EXPECT_EQ(named(u"Afficher"_s), nullptr);
    EXPECT_NE(named(u"1 commentaire"_s), nullptr);
}

TEST_F(ActivitySectionTest, AClickOnNotesHidesTheRepliesAndTheCreation)
{
    startSession();
    serve({by(u"Nora Vidal"_s, u"1"_s), note(u"2"_s)});
    open();
    ASSERT_NE(named(u"Afficher"_s), nullptr);
    click(u"Notes internes 1"_s);
    ASSERT_EQ(bubbles().size(), 1);
    EXPECT_EQ(nameOf(bubbles().first()), u"Elsa Karoubi a commenté il y a 1 h, note interne"_s);
    EXPECT_EQ(named(u"Basile Rochat a créé le ticket il y a 4 j"_s), nullptr);
}

TEST_F(ActivitySectionTest, TheArrowKeysChooseTheFilter)
{
    startSession();
    serve({reply(u"1"_s)}, u"SUP-41"_s, true);
    open();
    ASSERT_TRUE(tabTo(u"Tout 1"_s));
    press(Qt::Key_Right);
    press(Qt::Key_Right);
    EXPECT_EQ(focused(), u"Notes internes 0"_s);
    EXPECT_NE(named(u"Aucune note interne sur ce ticket."_s), nullptr);
    press(Qt::Key_Left);
    EXPECT_EQ(bubbles().size(), 1);
}

TEST_F(ActivitySectionTest, ARefreshKeepsTheFilterAndTheFocusOnIt)
{
    startSession();
    serve({reply(u"1"_s), note(u"2"_s)});
    open();
    ASSERT_TRUE(tabTo(u"Tout 2"_s));
    press(Qt::Key_Right);
    serve({reply(u"1"_s), note(u"2"_s), reply(u"3"_s)});
    EXPECT_EQ(focused(), u"Commentaires 2"_s);
    EXPECT_EQ(bubbles().size(), 2);
}

TEST_F(ActivitySectionTest, AnotherIssueBeginsWithAllComments)
{
    startSession();
    serve({reply(u"1"_s), note(u"2"_s)});
    serve({by(u"Nora Vidal"_s, u"3"_s), note(u"4"_s)}, u"SUP-42"_s);
    open();
    click(u"Notes internes 1"_s);
    page->setProperty("key", u"SUP-42"_s);
    frame();
    ASSERT_EQ(bubbles().size(), 2);
    EXPECT_EQ(nameOf(bubbles().first()), said(u"Nora Vidal"_s));
    EXPECT_NE(named(u"Basile Rochat a créé le ticket il y a 4 j"_s), nullptr);
}

TEST_F(ActivitySectionTest, TabReachesEachCommentThenItsTextAndLinks)
{
    startSession();
    serve({withLink(u"1"_s), by(u"Nora Vidal"_s, u"2"_s)});
    open();
    ASSERT_TRUE(tabTo(said(u"Elsa Karoubi"_s)));
    press(Qt::Key_Tab);
    EXPECT_EQ(bench.window().activeFocusItem(), body(bubbles().first()));
    press(Qt::Key_Tab);
    press(Qt::Key_Return);
    EXPECT_EQ(link(), u"https://exemple.fr/"_s);
    press(Qt::Key_Tab);
    EXPECT_EQ(focused(), said(u"Nora Vidal"_s));
    press(Qt::Key_Backtab);
    EXPECT_EQ(bench.window().activeFocusItem(), body(bubbles().first()));
}

TEST_F(ActivitySectionTest, TheVerticalArrowKeysWalkTheComments)
{
    startSession();
    serve({by(u"Elsa"_s, u"1"_s), by(u"Nora"_s, u"2"_s), by(u"Basile"_s, u"3"_s)});
    open();
    ASSERT_TRUE(tabTo(said(u"Elsa"_s)));
    press(Qt::Key_Up);
    EXPECT_EQ(focused(), said(u"Elsa"_s));
    press(Qt::Key_Down);
    press(Qt::Key_Down);
    EXPECT_EQ(focused(), said(u"Basile"_s));
    press(Qt::Key_Down);
    EXPECT_EQ(focused(), said(u"Basile"_s));
    press(Qt::Key_Up);
    EXPECT_EQ(focused(), said(u"Nora"_s));
}

TEST_F(ActivitySectionTest, TheArrowKeysWalkOnFromTheTextOfAComment)
{
    startSession();
    serve({by(u"Elsa"_s, u"1"_s), by(u"Nora"_s, u"2"_s)});
    open();
    ASSERT_TRUE(tabTo(said(u"Elsa"_s)));
    press(Qt::Key_Tab);
    press(Qt::Key_Down);
    EXPECT_EQ(focused(), said(u"Nora"_s));
}

TEST_F(ActivitySectionTest, ACommentWithTheFocusShowsARingAndAsksToBeSeen)
{
    startSession();
    serve({by(u"Elsa"_s, u"1"_s), by(u"Nora"_s, u"2"_s)});
    open();
    ASSERT_TRUE(tabTo(said(u"Elsa"_s)));
    const QImage first = frame();
    press(Qt::Key_Down);
    EXPECT_NE(first, frame());
    auto *second = bubbles().last();
    const QRectF box(second->mapToItem(named(u"Activité"_s), QPointF()),
                     QSizeF(second->width(), second->height()));
    EXPECT_EQ(revealed(), box);
}

TEST_F(ActivitySectionTest, AClickShowsNoRing)
{
    startSession();
    serve({by(u"Elsa"_s, u"1"_s)});
    open();
    auto *bubble = bubbles().first();
    const QImage before = frame();
    QTest::mouseClick(&bench.window(), Qt::LeftButton, {},
                      bubble->mapToScene(QPointF(20, bubble->height() - 4)).toPoint());
    EXPECT_EQ(before, frame());
}

TEST_F(ActivitySectionTest, ANewCommentMovesInAndTheOthersStay)
{
    bench.setToken("motion", "reduced", false);
    startSession();
    serve({by(u"Elsa"_s, u"1"_s)});
    open();
    ASSERT_TRUE(tabTo(said(u"Elsa"_s)));
    auto *first = bubbles().first();
    serve({by(u"Elsa"_s, u"1"_s), by(u"Nora"_s, u"2"_s)});
    frame();
    ASSERT_EQ(bubbles().size(), 2);
    EXPECT_EQ(bubbles().first(), first);
    EXPECT_EQ(focused(), said(u"Elsa"_s));
    auto *arrived = bubbles().last();
    const qreal rest = first->mapToScene(QPointF(0, first->height())).y() + 12;
    EXPECT_GT(arrived->mapToScene(QPointF()).y(), rest);
    EXPECT_LT(arrived->opacity(), 1);
    EXPECT_TRUE(QTest::qWaitFor([&] { return arrived->mapToScene(QPointF()).y() == rest; }));
    EXPECT_TRUE(QTest::qWaitFor([&] { return arrived->opacity() == 1; }));
}

TEST_F(ActivitySectionTest, WithReducedMotionANewCommentDoesNotMove)
{
    bench.setToken("motion", "reduced", true);
    startSession();
    serve({by(u"Elsa"_s, u"1"_s)});
    open();
    auto *first = bubbles().first();
    serve({by(u"Elsa"_s, u"1"_s), by(u"Nora"_s, u"2"_s)});
    frame();
    EXPECT_EQ(bubbles().last()->mapToScene(QPointF()).y(),
              first->mapToScene(QPointF(0, first->height())).y() + 12);
    bench.setToken("motion", "reduced", false);
}

TEST_F(ActivitySectionTest, TheCommentsOfAnIssueThatOpensDoNotMove)
{
    startSession();
    open();
    serve({by(u"Elsa"_s, u"1"_s), by(u"Nora"_s, u"2"_s)});
    ASSERT_EQ(bubbles().size(), 2);
    EXPECT_EQ(bubbles().last()->opacity(), 1);
}

TEST_F(ActivitySectionTest, AnEditedCommentKeepsItsBubbleAndTheFocus)
{
    startSession();
    serve({reply(u"1"_s, u"avant"_s)});
    open();
    ASSERT_TRUE(tabTo(said(u"Elsa Karoubi"_s)));
    auto *bubble = bubbles().first();
    const qreal height = bubble->height();
    serve({reply(u"1"_s, u"une phrase assez longue "_s.repeated(20))});
    frame();
    EXPECT_EQ(bubbles().first(), bubble);
    EXPECT_EQ(focused(), said(u"Elsa Karoubi"_s));
    EXPECT_GT(bubble->height(), height);
}

TEST_F(ActivitySectionTest, ADeletedCommentGoes)
{
    startSession();
    serve({by(u"Elsa"_s, u"1"_s), by(u"Nora"_s, u"2"_s)});
    open();
    serve({by(u"Nora"_s, u"2"_s)});
    ASSERT_EQ(bubbles().size(), 1);
    EXPECT_EQ(nameOf(bubbles().first()), said(u"Nora"_s));
}

TEST_F(ActivitySectionTest, ACommentWithoutABodyIsItsHeadOnly)
{
    startSession();
    Comment empty = reply(u"1"_s);
    empty.body.reset();
    serve({empty});
    open();
    EXPECT_EQ(bubbles().first()->height(), 12 + 24 + 12);
    EXPECT_EQ(body(bubbles().first()), nullptr);
}

TEST_F(ActivitySectionTest, LongNamesStayInsideTheirBubble)
{
    startSession();
    Comment comment = by(u"Elsa "_s.repeated(60), u"1"_s);
    comment.restrictedTo = u"Direction "_s.repeated(60);
    serve({comment});
    open();
    auto *bubble = bubbles().first();
    QList<QQuickItem *> items = bubble->childItems();
    while (!items.isEmpty()) {
        auto *item = items.takeLast();
        if (item->inherits("QQuickText")) {
            EXPECT_LE(bubble->mapFromItem(item, QPointF(item->width(), 0)).x(),
                      bubble->width() - 12);
        }
        items += item->childItems();
    }
}

TEST_F(ActivitySectionTest, InANarrowPaneThePickerStandsBelowTheTitle)
{
    startSession();
    serve({reply(u"1"_s), note(u"2"_s)});
    open();
    const auto top = [&] { return named(u"Afficher"_s)->mapToScene(QPointF()).y(); };
    const qreal beside = top();
    page->setWidth(340);
    frame();
    EXPECT_EQ(top(), beside + 28);
    EXPECT_LE(named(u"Afficher"_s)->mapToScene(QPointF()).x() + named(u"Afficher"_s)->width(), 340);
}

TEST_F(ActivitySectionTest, TheFilesStandBelowTheBodyOfACommentThatRefersToFiles)
{
    startSession();
    Comment comment = reply(u"7"_s);
    comment.attachmentIDs = {u"10"_s};
    serve({comment, reply(u"8"_s)});
    page->setProperty("filesHeight", 36);
    open();
    auto *files = part(page, u"files of 7"_s);
    ASSERT_NE(files, nullptr);
    EXPECT_EQ(part(page, u"files of 8"_s), nullptr);
    EXPECT_EQ(bubbles().first()->height(), bubbles().last()->height() + 6 + 36);
    EXPECT_EQ(files->width(), body(bubbles().first())->width());
}

TEST_F(ActivitySectionTest, WithoutFilesTheStripTakesNoSpace)
{
    startSession();
    serve({withLink(u"1"_s), reply(u"2"_s)});
    page->setProperty("filesHeight", 0);
    open();
    EXPECT_EQ(bubbles().first()->height(), bubbles().last()->height());
}

TEST_F(ActivitySectionTest, MediaAreShownByTheDelegate)
{
    startSession();
    Comment comment = reply(u"1"_s);
    comment.body = ADF::document({ADF::container(u"mediaSingle", {ADF::container(u"media", {})})});
    serve({comment});
    page->setProperty("showsMedia", true);
    open();
    EXPECT_NE(part(body(bubbles().first()), u"media"_s), nullptr);
}

TEST_F(ActivitySectionTest, AHundredCommentsAreAllReached)
{
    startSession();
    serve(many(100));
    open();
    EXPECT_TRUE(QTest::qWaitFor([&] { return bubbles().size() == 100; }));
    bubbles().at(98)->forceActiveFocus(Qt::TabFocusReason);
    press(Qt::Key_Down);
    EXPECT_EQ(bench.window().activeFocusItem(), bubbles().last());
}

TEST_F(ActivitySectionTest, TheMinuteChangesTheTimes)
{
    startSession();
    serve({reply(u"1"_s)});
    open();
    clock.advance(1h);
    EXPECT_EQ(nameOf(bubbles().first()), u"Elsa Karoubi a commenté il y a 2 h"_s);
}

TEST_F(ActivitySectionTest, ASecondSessionShowsItsOwnComments)
{
    startSession();
    serve({by(u"Elsa"_s, u"1"_s)});
    open();
    store->signOut();
    frame();
    EXPECT_EQ(bubbles().size(), 0);
    startSession();
    serve({by(u"Nora"_s, u"1"_s)});
    frame();
    ASSERT_EQ(bubbles().size(), 1);
    EXPECT_EQ(nameOf(bubbles().first()), said(u"Nora"_s));
}
