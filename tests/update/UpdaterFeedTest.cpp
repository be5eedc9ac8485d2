#include "update/UpdaterFixture.h"

using namespace Qt::StringLiterals;

namespace {

class UpdaterFeedTest : public UpdaterFixture
{
protected:
    std::string feed() const
    {
        return updater->feedURL().value_or(QUrl(u"absent"_s)).toString().toStdString();
    }
    RunningApp withFeed(const QString &address) const
    {
        RunningApp app = runningApp();
        app.feed = address;
        return app;
    }
};

TEST_F(UpdaterFeedTest, TheBuiltInFeedIsUsedByDefault)
{
    open(withFeed(u"  https://a.example/latest.json \n"_s));
    EXPECT_EQ(feed(), "https://a.example/latest.json");
    EXPECT_EQ(updater->bundledFeed(), u"https://a.example/latest.json"_s);
}

TEST_F(UpdaterFeedTest, TheUsersFeedComesFirst)
{
    open().setCustomFeed(u" https://b.example/x.json\n"_s);
    EXPECT_EQ(feed(), "https://b.example/x.json");
    EXPECT_EQ(updater->customFeed(), u" https://b.example/x.json\n"_s);
    EXPECT_EQ(preferences.text(u"updates.feed"_s), u"https://b.example/x.json"_s);
}

TEST_F(UpdaterFeedTest, ACustomFeedOfBlanksCountsAsEmpty)
{
    open().setCustomFeed(u" \t\n"_s);
    EXPECT_EQ(feed(), Feed.toStdString());
    EXPECT_EQ(preferences.text(u"updates.feed"_s), u""_s);
}

TEST_F(UpdaterFeedTest, WithoutAnyAddressThereIsNoFeed)
{
    open(withFeed(u"  "_s));
    EXPECT_EQ(feed(), "absent");
    EXPECT_FALSE(updater->hasFeed());
    EXPECT_FALSE(updater->bundledFeed());
}

TEST_F(UpdaterFeedTest, AnAddressWithoutASchemeIsNoFeed)
{
    for (const QString &address : {u"updates.example/latest.json"_s, u"//a.example/b"_s,
                                   u"latest"_s, u"https://a b.example"_s, u"http://[1"_s}) {
        open().setCustomFeed(address);
        EXPECT_EQ(feed(), "absent") << address.toStdString();
    }
}

TEST_F(UpdaterFeedTest, ATypedAddressEnablesTheCheckAtOnce)
{
    open(withFeed({}));
    int changes = 0;
    QObject::connect(&*updater, &Updater::customFeedChanged, &*updater, [&] { ++changes; });
    updater->setCustomFeed(Feed);
    EXPECT_TRUE(updater->hasFeed());
    updater->setCustomFeed(Feed);
    EXPECT_EQ(changes, 1);
}

TEST_F(UpdaterFeedTest, PreferencesAreReadAtTheStart)
{
    preferences.setFlag(u"updates.automatic"_s, false);
    preferences.setFlag(u"updates.download"_s, false);
    preferences.setText(u"updates.feed"_s, u"https://b.example/x.json"_s);
    open();
    EXPECT_FALSE(updater->automaticChecks());
    EXPECT_FALSE(updater->automaticDownloads());
    EXPECT_EQ(feed(), "https://b.example/x.json");
}

TEST_F(UpdaterFeedTest, WithoutPreferencesEverythingIsAutomatic)
{
    open();
    EXPECT_TRUE(updater->automaticChecks());
    EXPECT_TRUE(updater->automaticDownloads());
    EXPECT_EQ(updater->customFeed(), QString());
    EXPECT_FALSE(updater->lastCheck());
    EXPECT_EQ(updater->state(), State());
}

TEST_F(UpdaterFeedTest, AStoredValueOfAnotherTypeCountsAsTrue)
{
    preferences.setText(u"updates.automatic"_s, u"0"_s);
    preferences.setBytes(u"updates.download"_s, "false");
    open();
    EXPECT_TRUE(updater->automaticChecks());
    EXPECT_TRUE(updater->automaticDownloads());
}

TEST_F(UpdaterFeedTest, ChangesOfTheSwitchesAreStored)
{
    open().setAutomaticChecks(false);
    updater->setAutomaticDownloads(false);
    EXPECT_EQ(preferences.flag(u"updates.automatic"_s), false);
    EXPECT_EQ(preferences.flag(u"updates.download"_s), false);
    updater->setAutomaticChecks(true);
    EXPECT_EQ(preferences.flag(u"updates.automatic"_s), true);
}

} // namespace
