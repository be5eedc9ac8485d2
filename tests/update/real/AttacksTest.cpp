#include "update/real/RealUpdate.h"

using namespace Qt::StringLiterals;

namespace {

constexpr auto OtherMaker = ". La mise à jour ne vient pas du même développeur.";
constexpr auto OtherRelease = "Signature refusée : l'archive ne contient pas la version annoncée.";

/// The attacks on update systems that The Update Framework lists. The attacker controls the feed and the archives, but
/// has no secret key.
class AttacksTest : public RealUpdate
{
protected:
    ~AttacksTest() override
    {
        // Whatever happens, the installed bundle is the genuine one.
        EXPECT_EQ(readFile(installed() + u"/lib/libone.so"_s), "library of 121");
    }
};

TEST_F(AttacksTest, WithoutAnAttackTheReleaseIsReady)
{
    offer(u"1.5"_s, u"122"_s);
    EXPECT_EQ(check(), State(State::Ready{release}));
}

TEST_F(AttacksTest, ArbitrarySoftware)
{
    TestBundle foreign = bundleOf(u"1.5"_s, u"122"_s);
    foreign.seed = TestBundle::strangersSeed();
    offer(u"1.5"_s, u"122"_s, archiveOf(foreign));
    EXPECT_EQ(failure(),
              std::string("Signature refusée : la clé de signature est différente") + OtherMaker);
    foreign.seed.clear();
    offer(u"1.5"_s, u"122"_s, archiveOf(foreign));
    EXPECT_EQ(failure(),
              std::string("Signature refusée : l'application n'est pas signée") + OtherMaker);
}

TEST_F(AttacksTest, EndlessDataInTheFeed)
{
    feed = RawAnswer::largeOfUnknownLength(100LL * 1024 * 1024, "application/json");
    EXPECT_EQ(failure(), "La réponse du serveur est trop volumineuse.");
}

TEST_F(AttacksTest, EndlessDataInTheArchive)
{
    open(1'000'000);
    offer(u"1.5"_s, u"122"_s);
    archive = RawAnswer::largeOfUnknownLength(100LL * 1024 * 1024, "application/zip");
    EXPECT_EQ(failure(), "La réponse du serveur est trop volumineuse.");
    EXPECT_TRUE(runUntil([&] { return temporaryFiles().isEmpty(); }));
}

TEST_F(AttacksTest, ExtraneousDependencies)
{
    QList<TestEntry> entries = TestArchive::entriesOf(bundleOf(u"1.5"_s, u"122"_s));
    entries.append(TestEntry{"Velmora.app/lib/libevil.so", "x"});
    offer(u"1.5"_s, u"122"_s, TestArchive::zip(entries));
    EXPECT_EQ(failure(),
              std::string("Signature refusée : le fichier « lib/libevil.so » est en trop") +
                  OtherMaker);
}

TEST_F(AttacksTest, ExtraneousFilesBesideTheBundleAreNotInstalled)
{
    QList<TestEntry> entries = TestArchive::entriesOf(bundleOf(u"1.5"_s, u"122"_s));
    entries.append(TestEntry{"libevil.so", "x"});
    entries.append(TestEntry{"Zoo.app/bin/velmora", "x", 0100755});
    offer(u"1.5"_s, u"122"_s, TestArchive::zip(entries));
    EXPECT_TRUE(check().is(State::Kind::Ready));
    EXPECT_TRUE(updater->preparedApp().endsWith(u"/Velmora.app"_s));
}

TEST_F(AttacksTest, FastForward)
{
    offer(u"99.0"_s, u"999999"_s, archiveOf(bundleOf(u"1.5"_s, u"122"_s)));
    EXPECT_EQ(failure(), OtherRelease);
    // Nothing of the high number is kept, so the next genuine release is installed.
    offer(u"1.6"_s, u"123"_s);
    EXPECT_EQ(check(), State(State::Ready{release}));
}

TEST_F(AttacksTest, FreezeIsNotNoticed)
{
    offer(u"1.4"_s, u"121"_s);
    EXPECT_EQ(check(), State(State::UpToDate{}));
    clock.advance(std::chrono::hours(24 * 365));
    EXPECT_EQ(check(), State(State::UpToDate{}));
}

TEST_F(AttacksTest, AFreezeByAnUnreachableServerIsTold)
{
    server.stopListening();
    server.dropConnections(RawAnswer::Ending::Reset);
    EXPECT_FALSE(failure().empty());
    EXPECT_FALSE(updater->lastCheck());
}

TEST_F(AttacksTest, MaliciousMirror)
{
    offer(u"1.5"_s, u"122"_s);
    archive = RawAnswer::http(200, archiveOf(bundleOf(u"1.3"_s, u"100"_s)));
    EXPECT_EQ(failure(), "Le fichier téléchargé est corrompu (empreinte SHA-256 différente).");
    archive = RawAnswer::redirect("http://127.0.0.1:1/Velmora.zip");
    EXPECT_EQ(failure(), "Le serveur redirige vers une adresse non sécurisée.");
}

TEST_F(AttacksTest, MixAndMatch)
{
    const TestBundle genuine = bundleOf(u"1.5"_s, u"122"_s);
    QList<TestEntry> entries = TestArchive::entriesOf(genuine);
    for (TestEntry &entry : entries) {
        if (entry.path.endsWith("libone.so"))
            entry.content = bundleOf(u"1.3"_s, u"100"_s).files["lib/libone.so"];
    }
    offer(u"1.5"_s, u"122"_s, TestArchive::zip(entries));
    EXPECT_EQ(failure(),
              std::string("Signature refusée : le fichier « lib/libone.so » a été modifié") +
                  OtherMaker);
}

TEST_F(AttacksTest, Rollback)
{
    offer(u"1.3"_s, u"100"_s);
    EXPECT_EQ(check(), State(State::UpToDate{}));
    offer(u"9.0"_s, u"100"_s);
    EXPECT_EQ(check(), State(State::UpToDate{}));
    // The old release under a new name.
    offer(u"1.5"_s, u"122"_s, archiveOf(bundleOf(u"1.3"_s, u"100"_s)));
    EXPECT_EQ(failure(), OtherRelease);
}

TEST_F(AttacksTest, WrongSoftware)
{
    TestBundle other = bundleOf(u"1.5"_s, u"122"_s);
    other.manifest.identifier = u"fr.orvantis.Other"_s;
    offer(u"1.5"_s, u"122"_s, archiveOf(other));
    EXPECT_EQ(failure(),
              std::string("Signature refusée : l'identifiant est différent") + OtherMaker);
}

} // namespace
