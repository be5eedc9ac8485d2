#include "platform/linux/KeychainLinux.h"

#include "platform/AbruptBus.h"
#include "platform/FakePrompter.h"
#include "platform/KeyringDaemon.h"
#include "platform/SilentService.h"
#include "support/ManualClock.h"
#include "support/TaskResult.h"

#include <QTest>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

const auto Site = u"https://exemple.atlassian.net"_s;
const auto OtherSite = u"https://jira.exemple.fr"_s;

/// Shared by all tests, because GLib keeps its connection to the bus for longer than one test.
PrivateBus &sharedBus()
{
    static PrivateBus bus;
    return bus;
}

/// A keychain on a private bus, with a clock that does not advance by itself.
class KeychainLinuxTest : public testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(bus.isRunning()) << "dbus-daemon";
        qputenv("DBUS_SESSION_BUS_ADDRESS", bus.address().toUtf8());
    }

    void startKeyring(KeyringDaemon::Start start = KeyringDaemon::Start::Unlocked)
    {
        keyring.reset();
        keyring = std::make_unique<KeyringDaemon>(bus, folder.path(), start);
        ASSERT_TRUE(keyring->isRunning()) << "gnome-keyring-daemon";
    }

    Keychain::Lookup read(const QString &account = Site)
    {
        const TaskResult<Keychain::Lookup> result(keychain->read(account));
        EXPECT_TRUE(QTest::qWaitFor([&] { return result.isDone(); }));
        return result.isDone() ? result.value() : Keychain::Failed{0, u"no answer"_s};
    }
    /// The text for the user if the save fails; nothing if it succeeds.
    QString save(const QString &token, const QString &account = Site)
    {
        const TaskResult<void> result(keychain->save(token, account));
        EXPECT_TRUE(QTest::qWaitFor([&] { return result.isDone(); }));
        try {
            result.value();
        } catch (const Keychain::Failure &failure) {
            return failure.message();
        }
        return {};
    }
    /// The text for the user if the item cannot be deleted; nothing if it is gone.
    QString remove(const QString &account = Site)
    {
        const TaskResult<void> result(keychain->remove(account));
        EXPECT_TRUE(QTest::qWaitFor([&] { return result.isDone(); }));
        try {
            result.value();
        } catch (const Keychain::Failure &failure) {
            return failure.message();
        }
        return {};
    }
    static Keychain::Lookup found(const QString &token) { return Keychain::Found{token}; }
    static Keychain::Lookup missing() { return Keychain::Missing(); }
    static Keychain::Lookup locked()
    {
        return Keychain::Failed{KeychainLinux::Locked, u"le trousseau est verrouillé"_s};
    }

    PrivateBus &bus = sharedBus();
    QTemporaryDir folder;
    ManualClock clock;
    std::unique_ptr<KeyringDaemon> keyring;
    std::unique_ptr<KeychainLinux> keychain = std::make_unique<KeychainLinux>(clock);
};

TEST_F(KeychainLinuxTest, whatIsStoredIsFound)
{
    startKeyring();

    EXPECT_EQ(save(u"jeton-é-∆"_s), QString());

    EXPECT_EQ(read(), found(u"jeton-é-∆"_s));
    EXPECT_EQ(clock.pending(), 0) << "no limit is left running";
}

TEST_F(KeychainLinuxTest, anItemStandsUnderServiceAndAccountWithItsLabel)
{
    startKeyring();
    save(u"jeton"_s);

    EXPECT_EQ(keyring->labels(), QStringList{u"Velmora — https://exemple.atlassian.net"_s});
    const auto attributes = keyring->attributes().value(0);
    EXPECT_EQ(attributes[u"service"_s], u"fr.orvantis.Velmora"_s);
    EXPECT_EQ(attributes[u"account"_s], Site);
}

TEST_F(KeychainLinuxTest, nothingStoredIsMissing)
{
    startKeyring();

    EXPECT_EQ(read(), missing());
}

TEST_F(KeychainLinuxTest, aSecondSaveReplacesTheItem)
{
    startKeyring();
    save(u"ancien"_s);
    save(u"nouveau"_s);

    EXPECT_EQ(read(), found(u"nouveau"_s));
    EXPECT_EQ(keyring->labels().size(), 1);
}

TEST_F(KeychainLinuxTest, twoSitesUseTwoItems)
{
    startKeyring();
    save(u"un"_s, Site);
    save(u"deux"_s, OtherSite);

    EXPECT_EQ(read(Site), found(u"un"_s));
    EXPECT_EQ(read(OtherSite), found(u"deux"_s));

    EXPECT_EQ(remove(Site), QString());

    EXPECT_EQ(read(Site), missing());
    EXPECT_EQ(read(OtherSite), found(u"deux"_s));
}

TEST_F(KeychainLinuxTest, deletingWhatIsNotThereIsNoFault)
{
    startKeyring();

    EXPECT_EQ(remove(), QString());

    EXPECT_EQ(read(), missing());
}

TEST_F(KeychainLinuxTest, operationsRunInTheOrderOfTheirCalls)
{
    startKeyring();
    const TaskResult<void> first(keychain->save(u"un"_s, Site));
    const TaskResult<void> removed(keychain->remove(Site));
    const TaskResult<void> second(keychain->save(u"deux"_s, Site));

    EXPECT_EQ(read(), found(u"deux"_s));
    EXPECT_TRUE(first.isDone() && removed.isDone() && second.isDone());
}

TEST_F(KeychainLinuxTest, theItemOutlivesTheServiceAndThisProgram)
{
    startKeyring();
    save(u"jeton"_s);
    startKeyring();

    EXPECT_EQ(read(), found(u"jeton"_s));

    keychain = std::make_unique<KeychainLinux>(clock);

    EXPECT_EQ(read(), found(u"jeton"_s));
}

TEST_F(KeychainLinuxTest, aLockedKeyringIsARefusalAndTheItemStays)
{
    startKeyring();
    save(u"jeton"_s);
    keyring->lock();

    EXPECT_EQ(read(), locked());
    EXPECT_EQ(save(u"autre"_s),
              u"Le trousseau du système est verrouillé. Déverrouille-le, puis réessaie."_s);
    EXPECT_EQ(remove(),
              u"Le trousseau du système est verrouillé. Déverrouille-le, puis réessaie."_s);

    startKeyring();
    EXPECT_EQ(read(), found(u"jeton"_s));
}

TEST_F(KeychainLinuxTest, aKeyringThatWasLockedFromTheStartIsARefusalToo)
{
    startKeyring();
    save(u"jeton"_s);
    startKeyring(KeyringDaemon::Start::Locked);
    const FakePrompter prompter(bus.connection(u"prompter"_s), FakePrompter::User::Refuses);

    EXPECT_EQ(read(), locked());
    EXPECT_EQ(prompter.asked(), 1);
    EXPECT_EQ(read(OtherSite), missing()) << "an item of another account is not asked for";
    EXPECT_EQ(prompter.asked(), 1);
}

TEST_F(KeychainLinuxTest, beforeADeletionTheUserIsAskedToUnlockTheKeyring)
{
    startKeyring();
    save(u"jeton"_s);
    for (const auto start : {KeyringDaemon::Start::Unlocked, KeyringDaemon::Start::Locked}) {
        startKeyring(start);
        if (start == KeyringDaemon::Start::Unlocked)
            keyring->lock();
        const FakePrompter prompter(bus.connection(u"prompter"_s), FakePrompter::User::Refuses);
        EXPECT_EQ(remove(),
                  u"Le trousseau du système est verrouillé. Déverrouille-le, puis réessaie."_s);
        EXPECT_EQ(prompter.asked(), 1);
    }
    startKeyring();
    EXPECT_EQ(read(), found(u"jeton"_s));
}

TEST_F(KeychainLinuxTest, aQuestionThatTheUserTurnsDownIsARefusal)
{
    startKeyring();
    save(u"jeton"_s);
    keyring->lock();
    const FakePrompter prompter(bus.connection(u"prompter"_s), FakePrompter::User::Refuses);

    EXPECT_EQ(read(), locked());
    EXPECT_EQ(prompter.asked(), 1);
    EXPECT_EQ(save(u"autre"_s),
              u"Le trousseau du système est verrouillé. Déverrouille-le, puis réessaie."_s);
    EXPECT_EQ(prompter.asked(), 2);
}

TEST_F(KeychainLinuxTest, aQuestionThatNobodyAnswersEndsAfterThreeMinutes)
{
    startKeyring();
    save(u"jeton"_s);
    keyring->lock();
    const FakePrompter prompter(bus.connection(u"prompter"_s), FakePrompter::User::IsAway);
    const TaskResult<Keychain::Lookup> result(keychain->read(Site));
    ASSERT_TRUE(QTest::qWaitFor([&] { return prompter.asked() == 1; }));

    clock.advance(179s);
    EXPECT_FALSE(result.isDone());
    clock.advance(1s);

    ASSERT_TRUE(result.isDone());
    EXPECT_EQ(result.value(), Keychain::Lookup(Keychain::Failed{KeychainLinux::TimedOut,
                                                                u"le trousseau ne répond pas"_s}));
}

TEST_F(KeychainLinuxTest, noServiceIsARefusal)
{
    EXPECT_EQ(read(), Keychain::Lookup(Keychain::Failed{KeychainLinux::Absent,
                                                        u"aucun trousseau n'est disponible"_s}));
    EXPECT_EQ(save(u"jeton"_s),
              u"Aucun trousseau n'est disponible pour garder le token. Lance "
              u"celui de ton bureau (GNOME Keyring ou KWallet), puis réessaie."_s);
    EXPECT_NE(remove(), QString());
}

TEST_F(KeychainLinuxTest, noBusIsARefusal)
{
    qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nonexistent/bus");

    EXPECT_EQ(read(), Keychain::Lookup(Keychain::Failed{KeychainLinux::Absent,
                                                        u"aucun trousseau n'est disponible"_s}));
}

TEST_F(KeychainLinuxTest, aServiceThatComesLateIsFoundByTheNextCall)
{
    EXPECT_NE(save(u"jeton"_s), QString());
    startKeyring();

    EXPECT_EQ(save(u"jeton"_s), QString());
    EXPECT_EQ(read(), found(u"jeton"_s));
}

TEST_F(KeychainLinuxTest, aServiceThatStaysSilentIsARefusalAfterTenSeconds)
{
    const SilentService service(bus.connection(u"silent"_s));
    const TaskResult<void> result(keychain->save(u"jeton"_s, Site));
    ASSERT_TRUE(QTest::qWaitFor([&] { return service.wasAsked; }));

    clock.advance(9s);
    EXPECT_FALSE(result.isDone());
    clock.advance(1s);

    ASSERT_TRUE(result.isDone());
    try {
        result.value();
        FAIL() << "silence is no success";
    } catch (const Keychain::Failure &failure) {
        EXPECT_EQ(failure.status(), KeychainLinux::TimedOut);
        EXPECT_EQ(failure.message(),
                  u"Le trousseau du système ne répond pas. Réessaie dans un instant."_s);
    }
}

TEST_F(KeychainLinuxTest, whatWaitsWhenTheKeychainGoesIsCalledOff)
{
    const SilentService service(bus.connection(u"silent"_s));
    const TaskResult<Keychain::Lookup> first(keychain->read(Site));
    const TaskResult<Keychain::Lookup> second(keychain->read(Site));
    ASSERT_TRUE(QTest::qWaitFor([&] { return service.wasAsked; }));

    keychain.reset();

    ASSERT_TRUE(first.isDone() && second.isDone());
    EXPECT_THROW(first.value(), Cancelled);
    EXPECT_THROW(second.value(), Cancelled);
    EXPECT_EQ(clock.pending(), 0);
}

/// The keychain of a separate process that does not know the tests' bus.
class OwnKeychain
{
public:
    explicit OwnKeychain(const QString &bus)
    {
        qputenv("DBUS_SESSION_BUS_ADDRESS", bus.toUtf8());
        m_keychain = std::make_unique<KeychainLinux>(m_clock);
    }
    TaskResult<Keychain::Lookup> read() { return TaskResult(m_keychain->read(Site)); }
    static bool hasFailed(const TaskResult<Keychain::Lookup> &result)
    {
        return QTest::qWaitFor([&] { return result.isDone(); }) &&
               std::holds_alternative<Keychain::Failed>(result.value());
    }

private:
    ManualClock m_clock;
    std::unique_ptr<KeychainLinux> m_keychain;
};

/// Runs in a separate process: reads, stops the bus during a second read, and reads again.
[[noreturn]] void outliveTheBus()
{
    auto bus = std::make_unique<PrivateBus>();
    OwnKeychain keychain(bus->address());
    bool isRight = OwnKeychain::hasFailed(keychain.read());
    const auto second = keychain.read();
    bus.reset();
    isRight = OwnKeychain::hasFailed(second) && isRight;
    isRight = OwnKeychain::hasFailed(keychain.read()) && isRight;
    std::exit(isRight ? 0 : 1);
}

/// Runs in a separate process: the bus stops when the connection has just been opened.
[[noreturn]] void outliveTheOpening()
{
    const AbruptBus bus;
    OwnKeychain keychain(bus.address());
    bool isRight = true;
    // A read can still find the closed connection of the read before it, so that no new one is opened.
    while (isRight && bus.connectionsEnded < 10)
        isRight = OwnKeychain::hasFailed(keychain.read());
    std::exit(isRight ? 0 : 1);
}

TEST_F(KeychainLinuxTest, theEndOfTheBusDoesNotEndTheProgram)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_EXIT(outliveTheBus(), testing::ExitedWithCode(0), "");
}

TEST_F(KeychainLinuxTest, aBusThatEndsWhileItIsBeingOpenedDoesNotEndTheProgram)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_EXIT(outliveTheOpening(), testing::ExitedWithCode(0), "");
}

} // namespace
