#include "state/AppStoreFixture.h"

#include <QSignalSpy>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

class AppStoreToastsTest : public AppStoreFixture
{
protected:
    QStringList messages() const
    {
        QStringList result;
        for (const Toast &toast : store->toasts())
            result += toast.message;
        return result;
    }
};

TEST_F(AppStoreToastsTest, aNoticeStaysTwoSecondsAndFourTenths)
{
    store->toast(u"Lien copié"_s, u"doc.on.doc.fill"_s);
    clock.advance(2399ms);
    EXPECT_EQ(messages(), QStringList(u"Lien copié"_s));
    clock.advance(1ms);

    EXPECT_TRUE(store->toasts().isEmpty());
}

TEST_F(AppStoreToastsTest, anErrorStaysFiveSeconds)
{
    store->toast(u"Panne."_s, u"exclamationmark.triangle.fill"_s, ToastKind::Error);
    EXPECT_TRUE(store->toasts()[0].isError());
    clock.advance(4999ms);
    EXPECT_EQ(store->toasts().size(), 1);
    clock.advance(1ms);

    EXPECT_TRUE(store->toasts().isEmpty());
}

TEST_F(AppStoreToastsTest, aDismissedToastIsNotRemovedAgainAndANewerOneStays)
{
    store->toast(u"Premier"_s, u"star"_s);
    clock.advance(1000ms);
    store->dismissToast(store->toasts()[0].id);
    EXPECT_TRUE(store->toasts().isEmpty());
    store->toast(u"Premier"_s, u"star"_s);
    const QSignalSpy changes(store.get(), &AppStore::toastsChanged);
    clock.advance(1400ms);

    EXPECT_EQ(changes.count(), 0) << "the first one's time is over";
    EXPECT_EQ(messages(), QStringList(u"Premier"_s));
}

TEST_F(AppStoreToastsTest, dismissingAToastThatHasGoneChangesNothing)
{
    store->toast(u"Premier"_s, u"star"_s);
    const QUuid id = store->toasts()[0].id;
    store->dismissToast(id);
    store->toast(u"Second"_s, u"star"_s);
    store->dismissToast(id);

    EXPECT_EQ(messages(), QStringList(u"Second"_s));
}

TEST_F(AppStoreToastsTest, likeMessagesAreNotMergedAndTheOldestStandsFirst)
{
    store->toast(u"A"_s, u"star"_s, ToastKind::Error);
    store->toast(u"B"_s, u"star"_s);
    store->toast(u"B"_s, u"star"_s);
    EXPECT_EQ(messages(), QStringList({u"A"_s, u"B"_s, u"B"_s}));
    EXPECT_NE(store->toasts()[1].id, store->toasts()[2].id);

    clock.advance(2400ms);
    EXPECT_EQ(messages(), QStringList(u"A"_s));
}

TEST_F(AppStoreToastsTest, theModelShowsTheToasts)
{
    store->toast(u"A"_s, u"star"_s);
    ASSERT_EQ(store->toastModel()->rowCount(), 1);
    EXPECT_EQ(store->toastModel()->index(0).data(ToastModel::MessageRole), u"A"_s);
    clock.advance(2400ms);

    EXPECT_EQ(store->toastModel()->rowCount(), 0);
}

} // namespace
