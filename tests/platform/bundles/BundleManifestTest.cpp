#include "platform/bundles/BundleManifest.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

BundleManifest example()
{
    BundleManifest manifest;
    manifest.identifier = u"fr.orvantis.Velmora"_s;
    manifest.version = u"1.5 bêta"_s;
    manifest.build = u"122"_s;
    manifest.feed = u"https://a.example/latest.json"_s;
    manifest.key = QByteArray(32, 'k');
    manifest.files = {{"bin/velmora", true, 12, QByteArray(64, 'a')},
                      {"qml/two words.qml", false, 0, QByteArray(64, '0')}};
    return manifest;
}

bool isRefused(const QByteArray &text)
{
    return !BundleManifest::parsed(text);
}

/// The example's text with a part replaced, which must occur in it.
QByteArray with(const QByteArray &part, const QByteArray &replacement)
{
    QByteArray text = example().text();
    EXPECT_TRUE(text.contains(part)) << part.toStdString();
    return text.replace(part, replacement);
}

TEST(BundleManifestTest, HasOneTextForm)
{
    const QByteArray key = QByteArray(32, 'k').toHex();
    EXPECT_EQ(example().text(), "velmora-bundle 1\n"
                                "identifier fr.orvantis.Velmora\n"
                                "version 1.5 b\xc3\xaata\n"
                                "build 122\n"
                                "feed https://a.example/latest.json\n"
                                "key " +
                                    key +
                                    "\n"
                                    "file 755 12 " +
                                    QByteArray(64, 'a') +
                                    " bin/velmora\n"
                                    "file 644 0 " +
                                    QByteArray(64, '0') + " qml/two words.qml\n");
}

TEST(BundleManifestTest, WhatIsWrittenIsReadAgain)
{
    EXPECT_EQ(BundleManifest::parsed(example().text()), example());
    BundleManifest unsignedOne = example();
    unsignedOne.key.reset();
    unsignedOne.feed.clear();
    unsignedOne.files.clear();
    EXPECT_EQ(BundleManifest::parsed(unsignedOne.text()), unsignedOne);
}

TEST(BundleManifestTest, AnotherVersionOfTheFormatIsRefused)
{
    EXPECT_TRUE(isRefused(with("velmora-bundle 1", "velmora-bundle 2")));
}

TEST(BundleManifestTest, MissingOrRepeatedValuesAreRefused)
{
    EXPECT_TRUE(isRefused(with("identifier fr.orvantis.Velmora\n", "")));
    EXPECT_TRUE(isRefused(with("build 122\n", "build 122\nbuild 123\n")));
    EXPECT_TRUE(isRefused(with("version 1.5 b\xc3\xaata\n", "version \n")));
    EXPECT_TRUE(isRefused(with("build 122\n", "")));
}

TEST(BundleManifestTest, EveryOtherSpellingIsRefused)
{
    EXPECT_TRUE(isRefused(example().text() + '\n'));
    EXPECT_TRUE(isRefused(example().text().chopped(1)));
    EXPECT_TRUE(isRefused(example().text() + "more 1\n"));
    EXPECT_TRUE(isRefused(with("\n", "\r\n")));
    EXPECT_TRUE(isRefused(with("file 644 0", "file 644 00")));
    EXPECT_TRUE(isRefused(with("file 644 0", "file 644 +0")));
    EXPECT_TRUE(isRefused(with("file 644 0", "file 644  0")));
    EXPECT_TRUE(isRefused(with("file 644 0", "file 644 -1")));
    EXPECT_TRUE(isRefused(with(QByteArray(64, 'a'), QByteArray(64, 'A'))));
    EXPECT_TRUE(isRefused(with(QByteArray(64, 'a'), QByteArray(63, 'a'))));
    EXPECT_TRUE(isRefused(with("file 755", "file 4755")));
    EXPECT_TRUE(isRefused(with("file 755", "file 777")));
}

TEST(BundleManifestTest, AKeyOfTheWrongSizeIsRefused)
{
    const QByteArray key = QByteArray(32, 'k').toHex();
    EXPECT_TRUE(isRefused(with("key " + key, "key " + key + "00")));
    EXPECT_TRUE(isRefused(with("key " + key, "key ")));
    EXPECT_TRUE(isRefused(with("key " + key, "key " + key.toUpper())));
}

TEST(BundleManifestTest, PathsThatLeadOutAreRefused)
{
    for (const char *path :
         {"../velmora", "/bin/velmora", "bin/../velmora", "bin//velmora", "./velmora", "", "bin/",
          "MANIFEST", "MANIFEST.sig", "bin\\velmora", "b\tn"})
        EXPECT_TRUE(isRefused(with("bin/velmora", path))) << path;
}

TEST(BundleManifestTest, FilesAreSortedAndOccurOnce)
{
    EXPECT_TRUE(isRefused(with("bin/velmora", "qml/two words.qml")));
    EXPECT_TRUE(isRefused(with("bin/velmora", "zzz")));
}

TEST(BundleManifestTest, AVeryLargeManifestIsRefused)
{
    BundleManifest large = example();
    large.files.clear();
    const QByteArray hash(64, 'a');
    for (int i = 0; i < 40'000; ++i)
        large.files.append(
            {"f/" + QByteArray::number(1'000'000 + i) + QByteArray(30, 'n'), false, 1, hash});
    ASSERT_GT(large.text().size(), BundleManifest::LargestSize);
    EXPECT_TRUE(isRefused(large.text()));
}

} // namespace
