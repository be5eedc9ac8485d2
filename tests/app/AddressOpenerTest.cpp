#include "app/AddressOpener.h"

#include "app/WindowFixture.h"

#include <QTest>

using namespace Qt::StringLiterals;

class AddressOpening : public WindowFixture
{
protected:
    AddressOpening()
    {
        serve({u"MOB-1"_s, u"MOB-2"_s});
        service->issueCalls.answerBy(
            [this](const QString &key) { return *store().issue(key).value_or(SharedIssue()); });
    }
    qsizetype windows() { return QGuiApplication::topLevelWindows().size(); }
};

TEST_F(AddressOpening, OpensTheWindowOfTheIssue)
{
    openOnDemo();
    AddressOpener opener(store(), app->scenes());
    opener.open(u"velmora:MOB-2"_s);
    ASSERT_TRUE(app->scenes().issueWindow(u"MOB-2"_s));
    EXPECT_TRUE(app->scenes().issueWindow(u"MOB-2"_s)->isVisible());
}

TEST_F(AddressOpening, OpensThePageOfTheSiteThatTheSessionIsOn)
{
    openOnDemo();
    const auto page = store().browseURL(u"MOB-2"_s);
    ASSERT_TRUE(page.has_value());
    AddressOpener opener(store(), app->scenes());
    opener.open(page->toString());
    EXPECT_TRUE(app->scenes().issueWindow(u"MOB-2"_s));
}

TEST_F(AddressOpening, IgnoresThePageOfAnotherSite)
{
    openOnDemo();
    const auto before = windows();
    AddressOpener opener(store(), app->scenes());
    opener.open(u"https://other.example/browse/MOB-2"_s);
    opener.open(u"velmora:../../x"_s);
    EXPECT_EQ(windows(), before);
}

TEST_F(AddressOpening, AnAddressWaitsForTheSession)
{
    openSignedOut();
    AddressOpener opener(store(), app->scenes());
    opener.open(u"velmora:MOB-2"_s);
    EXPECT_FALSE(app->scenes().issueWindow(u"MOB-2"_s));
    click(find(QAccessible::Button, u"Explorer en mode démo"_s));
    EXPECT_TRUE(QTest::qWaitFor([&] { return app->scenes().issueWindow(u"MOB-2"_s) != nullptr; }));
}
