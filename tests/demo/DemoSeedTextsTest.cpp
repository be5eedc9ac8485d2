#include "demo/DemoSeedTexts.h"

#include "demo/DemoSamples.h"
#include "richtext/ADFQueries.h"

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

const ADFNode &description(const QString &key)
{
    static const DemoSite site = DemoSite::from(testSeed());
    return site.find(key)->description.value();
}

/// The kinds of the blocks of a document, in order.
QStringList blocks(const ADFNode &document)
{
    QStringList kinds;
    for (const ADFNode &block : document.content.value_or(QList<ADFNode>()))
        kinds += block.type;
    return kinds;
}

QStringList taskStates(const ADFNode &node)
{
    QStringList states;
    if (node.type == u"taskItem"_s)
        states += ADF::attribute(node, u"state"_s).value();
    for (const ADFNode &child : node.content.value_or(QList<ADFNode>()))
        states += taskStates(child);
    return states;
}

QStringList marks(const ADFNode &node)
{
    QStringList kinds;
    for (const ADFMark &mark : node.marks.value_or(QList<ADFMark>()))
        kinds += mark.type;
    for (const ADFNode &child : node.content.value_or(QList<ADFNode>()))
        kinds += marks(child);
    kinds.removeDuplicates();
    kinds.sort();
    return kinds;
}

QList<Comment> thread(const QString &key)
{
    return testSeed().threads.value(key);
}

} // namespace

TEST(DemoSeedTexts, descriptionIsADocumentOfVersionOne)
{
    for (const Issue &issue : testSeed().issues) {
        EXPECT_EQ(issue.description->type, u"doc"_s);
        EXPECT_EQ(issue.description->version, 1);
        EXPECT_FALSE(issue.description->content->isEmpty());
    }
}

TEST(DemoSeedTexts, issueWithoutATextOfItsOwnHasTwoHeadingsAndTwoTasks)
{
    EXPECT_EQ(blocks(description(u"SUP-44"_s)), words("heading paragraph heading taskList"));
    EXPECT_EQ(taskStates(description(u"SUP-44"_s)), words("TODO TODO"));
    EXPECT_TRUE(ADF::plainText(description(u"SUP-44"_s))
                    .contains(u"Changer le propriétaire de l'espace de travail."_s));
}

TEST(DemoSeedTexts, crashOfTheTokenShowsCodeAndTasks)
{
    const ADFNode &document = description(u"MOB-101"_s);
    EXPECT_EQ(blocks(document), words("heading paragraph heading orderedList heading paragraph "
                                      "codeBlock taskList"));
    EXPECT_EQ(taskStates(document), words("DONE TODO TODO"));
    EXPECT_EQ(marks(document), words("code em strong"));
    EXPECT_EQ(document.content->at(3).content->size(), 3);
    EXPECT_TRUE(ADF::attribute(document.content->at(6), u"language"_s));
}

TEST(DemoSeedTexts, billingPageShowsAQuoteAndALink)
{
    const ADFNode &document = description(u"WEB-201"_s);
    EXPECT_EQ(blocks(document), words("paragraph heading bulletList blockquote paragraph"));
    EXPECT_EQ(marks(document), words("link strong"));
    EXPECT_EQ(ADF::attribute(document.content->at(1), u"level"_s), u"3"_s);
    EXPECT_EQ(document.content->at(2).content->size(), 3);
    EXPECT_EQ(ADF::plainText(document.content->at(3)).trimmed(),
              u"Maquettes validées par l'équipe design le 14 octobre."_s);
    EXPECT_EQ(ADF::linkURLs(document).size(), 1);
    EXPECT_TRUE(ADF::plainText(document).contains(u"documentation Stripe Billing"_s));
}

TEST(DemoSeedTexts, dashboardShowsMeasuresAndAPlan)
{
    const ADFNode &document = description(u"WEB-205"_s);
    EXPECT_EQ(blocks(document), words("paragraph heading bulletList heading orderedList"));
    EXPECT_EQ(marks(document.content->at(0)), words("strong"));
    EXPECT_EQ(marks(document.content->at(2)), words("code strong"));
    EXPECT_EQ(document.content->at(4).content->size(), 3);
}

TEST(DemoSeedTexts, exportHasHalfOfItsCriteriaMet)
{
    EXPECT_EQ(blocks(description(u"WEB-202"_s)), words("paragraph heading taskList"));
    EXPECT_EQ(taskStates(description(u"WEB-202"_s)), words("DONE DONE TODO TODO"));
}

TEST(DemoSeedTexts, paletteIsShortWithInlineCode)
{
    EXPECT_EQ(blocks(description(u"DS-32"_s)), words("paragraph bulletList"));
    EXPECT_EQ(marks(description(u"DS-32"_s)), words("code strong"));
}

TEST(DemoSeedTexts, fiveThreadsHoldThirteenComments)
{
    const auto threads = testSeed().threads;
    QStringList keys = threads.keys();
    keys.sort();
    EXPECT_EQ(keys, words("MOB-101 SUP-41 SUP-42 WEB-202 WEB-205"));
    qsizetype count = 0;
    for (const QList<Comment> &comments : threads)
        count += comments.size();
    EXPECT_EQ(count, 13);
}

TEST(DemoSeedTexts, threadsStandOldestFirst)
{
    for (const QList<Comment> &comments : testSeed().threads)
        EXPECT_TRUE(std::ranges::is_sorted(comments, {}, &Comment::created));
}

TEST(DemoSeedTexts, serviceThreadMixesPublicAndInternal)
{
    const QList<Comment> comments = thread(u"SUP-41"_s);
    ASSERT_EQ(comments.size(), 4);
    QList<bool> internal;
    for (const Comment &comment : comments)
        internal += comment.isInternal;
    EXPECT_EQ(internal, (QList<bool>{false, true, false, true}));
    EXPECT_EQ(comments.first().author, DemoSeed::customer());
    EXPECT_EQ(comments.first().created, testNow().addDuration(-30h));
    EXPECT_EQ(comments.first().body->version, 1);
}

TEST(DemoSeedTexts, oneCommentIsRestrictedToAGroup)
{
    const QList<Comment> comments = thread(u"WEB-205"_s);
    EXPECT_FALSE(comments.first().restrictedTo);
    EXPECT_EQ(comments.last().restrictedTo, u"Developers"_s);
}

TEST(DemoSeedTexts, commentsHaveIdentifiersOfTheirOwn)
{
    QStringList ids;
    for (const QList<Comment> &comments : testSeed().threads) {
        for (const Comment &comment : comments) {
            ids += comment.id;
            EXPECT_TRUE(comment.attachmentIDs.isEmpty());
        }
    }
    EXPECT_EQ(ids.removeDuplicates(), 0);
}
