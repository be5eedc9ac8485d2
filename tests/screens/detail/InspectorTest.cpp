#include "screens/detail/DetailScreen.h"

using namespace Qt::StringLiterals;

namespace {

/// The pane beside the list, closed and shown again.
class Inspector : public DetailScreen
{
protected:
    QQuickItem *pane() { return paneBelow(window().contentItem()); }
    void close()
    {
        store().togglePeek();
        ASSERT_TRUE(QTest::qWaitFor([&] { return !pane() || !pane()->isVisible(); }));
    }

private:
    static QQuickItem *paneBelow(QQuickItem *item)
    {
        if (QByteArrayView(item->metaObject()->className()).startsWith("InspectorPane_QML"))
            return item;
        for (auto *child : item->childItems()) {
            if (auto *found = paneBelow(child))
                return found;
        }
        return nullptr;
    }
};

} // namespace

TEST_F(Inspector, IsKeptWhileItIsClosedBecauseItsCreationIsFelt)
{
    openIssue();
    const auto *const first = pane();
    ASSERT_NE(first, nullptr);
    close();
    EXPECT_TRUE(spokenIn(window(), QAccessible::EditableText, u"Titre"_s).isEmpty());
    openIssue();
    EXPECT_EQ(pane(), first);
    EXPECT_TRUE(first->isVisible());
}

TEST_F(Inspector, ShowsNothingOfWhatWasTypedBeforeItWasClosed)
{
    openIssue();
    click(find(QAccessible::EditableText, u"Commentaire"_s));
    type(u"Pour MOB-2"_s);
    close();
    openIssue();
    EXPECT_EQ(find(QAccessible::EditableText, u"Commentaire"_s).value, QString());
    EXPECT_FALSE(isTyping());
    await(QAccessible::Button, u"Reprendre le brouillon"_s);
}

TEST_F(Inspector, ThatIsClosedDuringTypingSendsTheTitleOnce)
{
    openIssue();
    editTitle(u"Un autre titre"_s);
    close();
    EXPECT_EQ(sent(), QStringList(u"Un autre titre"_s));
    openIssue();
    EXPECT_EQ(titleShown(), u"Un autre titre"_s);
    EXPECT_EQ(sent(), QStringList(u"Un autre titre"_s));
}
