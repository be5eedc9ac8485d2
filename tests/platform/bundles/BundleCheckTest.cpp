#include "platform/bundles/BundleCheck.h"

#include "platform/bundles/BundleSignature.h"
#include "platform/bundles/TestBundle.h"
#include "platform/bundles/UpdateError.h"

#include <QDir>
#include <QTemporaryDir>

#include <functional>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

BundleCheck::Requirement makersRequirement()
{
    return {u"fr.orvantis.Velmora"_s, BundleSignature::publicKey(TestBundle::makersSeed())};
}

class BundleCheckTest : public testing::Test
{
protected:
    QString app() const { return root.filePath(u"Velmora.app"_s); }

    std::string failure(const BundleCheck::Requirement &requirement = makersRequirement()) const
    {
        try {
            BundleCheck::verified(app(), requirement);
        } catch (const UpdateError &error) {
            EXPECT_EQ(error.kind(), UpdateError::Kind::Signature);
            return error.message().toStdString();
        }
        return {};
    }

    QTemporaryDir root;
};

TEST_F(BundleCheckTest, AnUnchangedBundleOfTheMakerIsAccepted)
{
    const TestBundle bundle;
    bundle.write(app());
    EXPECT_EQ(failure(), "");
    EXPECT_EQ(BundleCheck::verified(app(), makersRequirement()).version, u"1.5"_s);
}

TEST_F(BundleCheckTest, AnUnsignedProgramRequiresOnlyTheIdentifier)
{
    TestBundle bundle;
    bundle.seed = TestBundle::strangersSeed();
    bundle.write(app());
    EXPECT_EQ(failure({u"fr.orvantis.Velmora"_s, {}}), "");
    EXPECT_EQ(
        failure({u"org.example.Other"_s, {}}),
        "Signature refusée : l'identifiant est différent. La mise à jour ne vient pas du même "
        "développeur.");
}

TEST_F(BundleCheckTest, AnUnsignedBundleSatisfiesAnUnsignedProgram)
{
    TestBundle bundle;
    bundle.seed.clear();
    bundle.write(app());
    EXPECT_EQ(failure({u"fr.orvantis.Velmora"_s, {}}), "");
    writeFile(app() + u"/lib/libone.so"_s, "two");
    EXPECT_NE(failure({u"fr.orvantis.Velmora"_s, {}}), "");
}

TEST_F(BundleCheckTest, TheHashOfAFileIsThatOfItsContent)
{
    writeFile(root.filePath(u"file"_s), QByteArray(0x100000, 'x') + "y");
    EXPECT_EQ(BundleCheck::sha256(root.filePath(u"file"_s)),
              "56c8a5b6a4fb60400890961be33dbd0b282ede8638910aa613fd7678c223aa08");
    writeFile(root.filePath(u"empty"_s), {});
    EXPECT_EQ(BundleCheck::sha256(root.filePath(u"empty"_s)),
              "e3b0c44298fc1c149afbf4c8996fb92427ae41e4649b934ca495991b7852b855");
    EXPECT_EQ(BundleCheck::sha256(root.filePath(u"missing"_s)), std::nullopt);
    EXPECT_EQ(BundleCheck::sha256(root.path()), std::nullopt);
}

/// A way to spoil a bundle: before it is written, or afterwards in its folder.
struct Spoiled
{
    const char *name;
    std::function<void(TestBundle &)> make;
    std::function<void(const QString &)> spoil;
    const char *detail;
};

void nothing(TestBundle &) {}
void leave(const QString &) {}

QByteArray nameOf(const QString &path)
{
    return path.toLocal8Bit();
}

class SpoiledBundleTest : public BundleCheckTest, public testing::WithParamInterface<Spoiled>
{
};

TEST_P(SpoiledBundleTest, IsRefused)
{
    TestBundle bundle;
    GetParam().make(bundle);
    bundle.write(app());
    GetParam().spoil(app());
    const std::string text = std::string("Signature refusée : ") + GetParam().detail;
    const bool isUnreadable = std::string(GetParam().detail) == "signature illisible";
    EXPECT_EQ(failure(),
              isUnreadable ? text : text + ". La mise à jour ne vient pas du même développeur.");
}

INSTANTIATE_TEST_SUITE_P(
    Bundles, SpoiledBundleTest,
    testing::Values(
        Spoiled{"ByAStranger",
                [](TestBundle &bundle) { bundle.seed = TestBundle::strangersSeed(); }, leave,
                "la clé de signature est différente"},
        Spoiled{"ByAStrangerWithTheMakersKey",
                [](TestBundle &bundle) {
                    bundle.manifest.key = BundleSignature::publicKey(TestBundle::makersSeed());
                    bundle.seed = TestBundle::strangersSeed();
                },
                leave, "la signature n'est pas valable"},
        Spoiled{"Unsigned", [](TestBundle &bundle) { bundle.seed.clear(); }, leave,
                "l'application n'est pas signée"},
        Spoiled{"WithoutASignatureFile", nothing,
                [](const QString &app) { QFile::remove(app + u"/MANIFEST.sig"_s); },
                "la signature n'est pas valable"},
        Spoiled{"WithALinkInPlaceOfTheSignature", nothing,
                [](const QString &app) {
                    QFile::rename(app + u"/MANIFEST.sig"_s, app + u"/../sig"_s);
                    QFile::link(app + u"/../sig"_s, app + u"/MANIFEST.sig"_s);
                },
                "la signature n'est pas valable"},
        Spoiled{"WithAnotherIdentifier",
                [](TestBundle &bundle) { bundle.manifest.identifier = u"org.example.Other"_s; },
                leave, "l'identifiant est différent"},
        Spoiled{"WithoutAManifest", nothing,
                [](const QString &app) { QFile::remove(app + u"/MANIFEST"_s); },
                "signature illisible"},
        Spoiled{"WithALinkInPlaceOfTheManifest", nothing,
                [](const QString &app) {
                    QFile::rename(app + u"/MANIFEST"_s, app + u"/../manifest"_s);
                    QFile::link(app + u"/../manifest"_s, app + u"/MANIFEST"_s);
                },
                "signature illisible"},
        Spoiled{"WithAPipeInPlaceOfTheManifest", nothing,
                [](const QString &app) {
                    QFile::remove(app + u"/MANIFEST"_s);
                    ::mkfifo(nameOf(app + u"/MANIFEST"_s).constData(), 0644);
                },
                "signature illisible"},
        Spoiled{"WithAChangedManifest", nothing,
                [](const QString &app) {
                    writeFile(app + u"/MANIFEST"_s,
                              readFile(app + u"/MANIFEST"_s).replace("build 122", "build 123"));
                },
                "la signature n'est pas valable"},
        Spoiled{"WithADamagedManifest", nothing,
                [](const QString &app) { writeFile(app + u"/MANIFEST"_s, "velmora-bundle 1\n"); },
                "signature illisible"},
        Spoiled{"ThatIsALink", nothing,
                [](const QString &app) {
                    QFile::rename(app, app + u".real"_s);
                    QFile::link(app + u".real"_s, app);
                },
                "signature illisible"},
        Spoiled{"ThatIsAFile", nothing,
                [](const QString &app) {
                    QDir(app).removeRecursively();
                    writeFile(app, "file");
                },
                "signature illisible"},
        Spoiled{"WithAnAddedFile", nothing,
                [](const QString &app) { writeFile(app + u"/lib/libtwo.so"_s, "two"); },
                "le fichier « lib/libtwo.so » est en trop"},
        Spoiled{"WithAnAddedHiddenFile", nothing,
                [](const QString &app) { writeFile(app + u"/.hidden"_s, {}); },
                "le fichier « .hidden » est en trop"},
        Spoiled{"WithAnAddedFolder", nothing,
                [](const QString &app) { QDir(app).mkdir(u"plugins"_s); },
                "le dossier « plugins » est en trop"},
        Spoiled{"WithAMissingFile", nothing,
                [](const QString &app) { QFile::remove(app + u"/lib/libone.so"_s); },
                "le fichier « lib/libone.so » manque"},
        Spoiled{"WithAChangedFile", nothing,
                [](const QString &app) { writeFile(app + u"/lib/libone.so"_s, "onE"); },
                "le fichier « lib/libone.so » a été modifié"},
        Spoiled{"WithALongerFile", nothing,
                [](const QString &app) { writeFile(app + u"/lib/libone.so"_s, "one more"); },
                "le fichier « lib/libone.so » a été modifié"},
        Spoiled{"WithALinkToTheSameContent", nothing,
                [](const QString &app) {
                    QFile::rename(app + u"/lib/libone.so"_s, app + u"/../libone.so"_s);
                    QFile::link(app + u"/../libone.so"_s, app + u"/lib/libone.so"_s);
                },
                "« lib/libone.so » est un lien"},
        Spoiled{"WithASecondNameOutside", nothing,
                [](const QString &app) {
                    EXPECT_EQ(::link(nameOf(app + u"/lib/libone.so"_s).constData(),
                                     nameOf(app + u"/../second"_s).constData()),
                              0);
                },
                "« lib/libone.so » est un lien"},
        Spoiled{"WithALinkedFolder", nothing,
                [](const QString &app) {
                    QFile::rename(app + u"/lib"_s, app + u"/../lib"_s);
                    QFile::link(app + u"/../lib"_s, app + u"/lib"_s);
                },
                "« lib » est un lien"},
        Spoiled{
            "WithAPipe", nothing,
            [](const QString &app) { ::mkfifo(nameOf(app + u"/lib/pipe"_s).constData(), 0644); },
            "« lib/pipe » est un fichier spécial"},
        Spoiled{"WithAnExecutableLibrary", nothing,
                [](const QString &app) {
                    ::chmod(nameOf(app + u"/lib/libone.so"_s).constData(), 0755);
                },
                "les droits de « lib/libone.so » ont été modifiés"},
        Spoiled{
            "WithASetUserIdProgram", nothing,
            [](const QString &app) { ::chmod(nameOf(app + u"/bin/velmora"_s).constData(), 04755); },
            "les droits de « bin/velmora » ont été modifiés"},
        Spoiled{"WithAFileThatAllCanWrite", nothing,
                [](const QString &app) {
                    ::chmod(nameOf(app + u"/lib/libone.so"_s).constData(), 0666);
                },
                "les droits de « lib/libone.so » ont été modifiés"},
        Spoiled{"WithAFolderThatAllCanWrite", nothing,
                [](const QString &app) { ::chmod(nameOf(app + u"/lib"_s).constData(), 0777); },
                "les droits de « lib » ont été modifiés"},
        Spoiled{"WithoutAProgram", [](TestBundle &bundle) { bundle.files.remove("bin/velmora"); },
                leave, "le programme manque"}),
    [](const auto &info) { return std::string(info.param.name); });

} // namespace
