#include "state/edits/DocumentComposing.h"

#include "richtext/ADFQueries.h"
#include "state/edits/MentionCandidates.h"
#include "state/recap/ActivitySamples.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const JiraUser nora = Sample::user(u"u1"_s, u"Nora Valmy"_s);
const JiraUser lea = Sample::user(u"u2"_s, u"Léa"_s);

QStringList mentionedIDs(const ADFNode &document)
{
    QStringList ids;
    for (const JiraUser &user : ADF::mentionedUsers(document))
        ids.append(user.id);
    return ids;
}

} // namespace

TEST(DocumentComposing, MakesADocumentOfJirasVersion)
{
    const ADFNode document = composedDocument(u"Bonjour\r\n\r\n- un\r\n- deux"_s, {});
    EXPECT_EQ(document.type, u"doc");
    EXPECT_EQ(document.version, 1);
    ASSERT_EQ(document.content->size(), 2);
    EXPECT_EQ(document.content->at(0).type, u"paragraph");
    EXPECT_EQ(document.content->at(1).type, u"bulletList");
    EXPECT_EQ(ADF::plainText(document.content->at(0)), u"Bonjour");
}

TEST(DocumentComposing, LinksTypedMentions)
{
    EXPECT_EQ(mentionedIDs(composedDocument(u"Merci @Nora Valmy !"_s, {nora, lea})),
              QStringList{u"u1"_s});
    EXPECT_EQ(mentionedIDs(composedDocument(u"Merci @Nora Valmy !"_s, {lea})), QStringList());
}

TEST(DocumentComposing, AMentionTypedByHandOfAUserKnownOnlyFromBeforeBecomesALink)
{
    const MentionSources sources{.issue = {},
                                 .comments = {},
                                 .assignables = {},
                                 .availableAssignees = {},
                                 .knownUsers = {{nora.id, nora}},
                                 .me = {}};
    const ADFNode document =
        composedDocument(u"@Nora Valmy, ton avis ?"_s, mentionCandidates(sources));
    EXPECT_EQ(mentionedIDs(document), QStringList{u"u1"_s});
}

TEST(DescriptionComposing, SpacesAloneClearTheDescription)
{
    EXPECT_EQ(composedDescription(u" \n\t "_s, composedDocument(u"avant"_s, {}), {nora}),
              std::nullopt);
}

TEST(DescriptionComposing, NamesThatWereMentionsStayMentions)
{
    const ADFNode present = composedDocument(u"@Nora Valmy"_s, {nora});
    const auto changed = composedDescription(u"@Nora Valmy et @Léa"_s, present, {lea});
    ASSERT_TRUE(changed);
    EXPECT_EQ(mentionedIDs(*changed), (QStringList{u"u1"_s, u"u2"_s}));
}

TEST(DescriptionComposing, AnIssueWithoutADescriptionGetsOne)
{
    EXPECT_EQ(composedDescription(u"texte"_s, std::nullopt, {}), composedDocument(u"texte"_s, {}));
}
