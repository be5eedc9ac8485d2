#include "demo/DemoWiring.h"

#include "demo/DemoFiles.h"
#include "demo/DemoSamples.h"
#include "richtext/ADFQueries.h"

using namespace Qt::StringLiterals;

namespace {

const QString key = u"SUP-41"_s;

QHash<QString, QList<Attachment>> seededFiles()
{
    return DemoFiles::seed(seededFolder(), testNow());
}

DemoSite wiredSite(const QHash<QString, QList<Attachment>> &files = seededFiles())
{
    DemoSite site = DemoSite::from(testSeed());
    DemoWiring::attach(site, files, countingIDs());
    return site;
}

std::optional<QString> attribute(const ADFNode &node, const QString &name)
{
    return ADF::attribute(node, name);
}

} // namespace

TEST(DemoWiring, theFilesBelongToThreeIssues)
{
    const DemoSite site = wiredSite();
    EXPECT_EQ(site.files, seededFiles());
}

TEST(DemoWiring, theFirstCommentContainsThePictureByItsId)
{
    const DemoSite site = wiredSite();
    const Comment comment = site.threads.value(key).first();
    const ADFNode &group = comment.body->content->last();
    EXPECT_EQ(group.type, u"mediaGroup"_s);
    ASSERT_EQ(group.content->size(), 1);
    const ADFNode &media = group.content->first();
    EXPECT_EQ(media.type, u"media"_s);
    EXPECT_EQ(media.attrs->size(), 4);
    EXPECT_EQ(attribute(media, u"id"_s), u"1"_s);
    EXPECT_EQ(attribute(media, u"type"_s), u"file"_s);
    EXPECT_EQ(attribute(media, u"collection"_s), QString());
    EXPECT_EQ(attribute(media, u"velmoraAttachmentID"_s), seededFiles()[key].first().id);
    EXPECT_EQ(comment.body->content->size(), 2);
    EXPECT_TRUE(comment.attachmentIDs.isEmpty());
}

TEST(DemoWiring, theSecondCommentHasTheLogBesideItsText)
{
    const DemoSite site = wiredSite();
    const Comment comment = site.threads.value(key).at(1);
    EXPECT_EQ(comment.attachmentIDs, QStringList{seededFiles()[key].last().id});
    EXPECT_EQ(comment.body, testSeed().threads.value(key).at(1).body);
}

TEST(DemoWiring, theDescriptionBeginsWithThePictureByItsName)
{
    const DemoSite site = wiredSite();
    const QList<ADFNode> &blocks = *site.find(key)->description->content;
    EXPECT_EQ(ADF::plainText(blocks[0]), u"Capture envoyée par la cliente :"_s);
    EXPECT_EQ(blocks[0].type, u"paragraph"_s);
    EXPECT_EQ(blocks[1].type, u"mediaSingle"_s);
    EXPECT_EQ(attribute(blocks[1], u"layout"_s), u"center"_s);
    const ADFNode &media = blocks[1].content->first();
    EXPECT_EQ(attribute(media, u"alt"_s), u"facture-septembre-erreur.png"_s);
    EXPECT_EQ(attribute(media, u"velmoraAttachmentID"_s), std::nullopt);
    EXPECT_EQ(blocks[2].type, u"heading"_s);
}

TEST(DemoWiring, otherIssuesAndCommentsAreThoseOfTheSeed)
{
    DemoSite site = wiredSite();
    const DemoSite unwired = DemoSite::from(testSeed());
    EXPECT_EQ(site.threads.value(key).sliced(2), unwired.threads.value(key).sliced(2));
    site.threads.remove(key);
    EXPECT_EQ(site.threads.size() + 1, unwired.threads.size());
    for (auto each = unwired.store.cbegin(); each != unwired.store.cend(); ++each) {
        if (each.key() != key)
            EXPECT_EQ(**each, *site.find(each.key())) << qPrintable(each.key());
    }
}

TEST(DemoWiring, withoutFilesNothingChanges)
{
    const DemoSite site = wiredSite({});
    EXPECT_EQ(site.threads, DemoSite::from(testSeed()).threads);
    EXPECT_TRUE(site.files.isEmpty());
}

TEST(DemoWiring, withoutTheIssueNothingIsMissing)
{
    DemoSite site = siteOf({sampleIssue(u"T-1"_s)});
    DemoWiring::attach(site, seededFiles(), countingIDs());
    EXPECT_EQ(*site.find(u"T-1"_s), sampleIssue(u"T-1"_s));
    EXPECT_TRUE(site.threads.isEmpty());
}
