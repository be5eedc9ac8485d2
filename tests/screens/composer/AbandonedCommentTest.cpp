#include "app/Spoken.h"
#include "screens/Bench.h"
#include "screens/composer/IssueComposition.h"
#include "state/AppStoreFixture.h"

#include <QQmlContext>
#include <QQmlEngine>
#include <QTest>

using namespace Qt::StringLiterals;

/// The composer of an issue in a window, used by keys and pointer.
class AbandonedComment : public AppStoreFixture
{
protected:
    AbandonedComment()
    {
        startSession();
        bench.window().engine()->rootContext()->setContextProperty(u"testStore"_s, store.get());
        page = bench.show(uR"(
            import Velmora.Composer
            FocusScope {
                id: root
                property alias composition: comment
                property alias composer: composer
                width: 600
                height: 400
                focus: true
                Layer { item: root; isOpen: true; kind: Layer.Kind.Content; closesOnEscape: false }
                IssueComposition {
                    id: comment
                    store: testStore
                    issueKey: "SUP-1"
                    projectKey: "SUP"
                }
                CommentComposer {
                    id: composer
                    x: 20
                    y: 300 - height
                    width: root.width - 40
                    focus: true
                    composition: comment
                }
            })"_s);
        EXPECT_NE(page, nullptr) << bench.warnings();
    }
    ~AbandonedComment() override { EXPECT_EQ(bench.warnings(), ""); }

    void press(int key, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::keyClick(&bench.window(), Qt::Key(key), modifiers);
    }
    void type(const QString &text)
    {
        for (const QChar letter : text)
            QTest::sendKeyEvent(QTest::Click, &bench.window(), Qt::Key_unknown, QString(letter),
                                Qt::NoModifier);
    }
    QList<Spoken> offers()
    {
        bench.window().grabWindow();
        return spokenIn(bench.window(), QAccessible::Button, u"Reprendre le brouillon"_s);
    }
    QQuickItem *focused() { return bench.window().activeFocusItem(); }
    QString text() { return focused()->property("text").toString(); }
    IssueComposition *composition()
    {
        return page->property("composition").value<IssueComposition *>();
    }
    qreal height() { return page->property("composer").value<QQuickItem *>()->height(); }
    /// Types a text, and leaves the issue for another one and returns.
    void abandon(const QString &words)
    {
        type(words);
        composition()->setIssueKey(u"SUP-2"_s);
        EXPECT_EQ(text(), QString());
        EXPECT_TRUE(offers().isEmpty());
        composition()->setIssueKey(u"SUP-1"_s);
    }

    Bench bench;
    QQuickItem *page = nullptr;
};

TEST_F(AbandonedComment, ItIsOfferedWhileNothingIsTypedAndTakenUpByOnePress)
{
    const qreal plain = height();
    abandon(u"Merci"_s);
    ASSERT_EQ(offers().size(), 1);
    EXPECT_EQ(text(), QString());
    EXPECT_GT(height(), plain);
    type(u"x"_s);
    EXPECT_TRUE(offers().isEmpty());
    EXPECT_EQ(height(), plain);
    press(Qt::Key_Backspace);
    const auto offered = offers();
    ASSERT_EQ(offered.size(), 1);
    QTest::mouseClick(&bench.window(), Qt::LeftButton, {}, offered.first().box.center());
    EXPECT_EQ(text(), u"Merci"_s);
    EXPECT_TRUE(offers().isEmpty());
    type(u"!"_s);
    press(Qt::Key_Return, Qt::ControlModifier);
    ASSERT_EQ(service->addCommentCalls.count(), 1);
    service->addCommentCalls[0].finish({});
    EXPECT_EQ(text(), QString());
    EXPECT_TRUE(offers().isEmpty());
}

TEST_F(AbandonedComment, TheKeyboardReachesIt)
{
    abandon(u"Merci"_s);
    press(Qt::Key_Backtab, Qt::ShiftModifier);
    ASSERT_EQ(Bench::accessible(focused())->text(QAccessible::Name), u"Reprendre le brouillon"_s);
    press(Qt::Key_Space);
    EXPECT_EQ(text(), u"Merci"_s);
    press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(text(), QString()) << "one step of undo";
}

TEST_F(AbandonedComment, AnInternalNoteIsMarkedAsSoonAsItIsTakenUp)
{
    composition()->setAllowsInternal(true);
    composition()->setIsInternal(true);
    abandon(u"Entre nous"_s);
    EXPECT_FALSE(composition()->isInternal());
    EXPECT_TRUE(pressAction(bench.window(), QAccessible::Button, u"Reprendre le brouillon"_s));
    EXPECT_EQ(text(), u"Entre nous"_s);
    bench.window().grabWindow();
    const auto note = spokenIn(bench.window(), QAccessible::RadioButton, u"Note interne"_s);
    ASSERT_EQ(note.size(), 1);
    EXPECT_TRUE(note.first().state.checked);
    press(Qt::Key_Return, Qt::ControlModifier);
    ASSERT_EQ(service->addCommentCalls.count(), 1);
    EXPECT_TRUE(service->addCommentCalls[0].argument<2>());
}
