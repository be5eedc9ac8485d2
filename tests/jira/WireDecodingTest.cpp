#include "jira/wire/WireDecoding.h"

#include "jira/wire/SearchResponseDTO.h"
#include "jira/wire/UserDTO.h"
#include "richtext/ADFCoding.h"

#include <gtest/gtest.h>
#include <random>

using namespace Qt::StringLiterals;

namespace {

/// The error when the bytes are decoded as the response to a search; empty if they are valid.
QString failureOf(const QByteArray &json)
{
    const auto page = decodeWire<SearchResponseDTO>(json);
    return page ? QString() : page.error().detail;
}

QByteArray issueWith(const QByteArray &fields)
{
    return R"({"issues":[{"id":"1","key":"A-1","fields":{)" + fields + "}}]}";
}

QByteArray nested(int depth, const QByteArray &innermost)
{
    return QByteArray("[").repeated(depth) + innermost + QByteArray("]").repeated(depth);
}

QByteArray documentOfDepth(int depth)
{
    QByteArray json = R"({"type":"x"})";
    for (int i = 1; i < depth; ++i)
        json = R"({"type":"x","content":[)" + json + "]}";
    return json;
}

class HugeNumber : public testing::TestWithParam<QByteArray>
{
};

TEST_P(HugeNumber, InAMemberThatNobodyReadsIsNoFault)
{
    EXPECT_EQ(failureOf(R"({"total":)" + GetParam() + R"(,"issues":[]})"), QString());
    EXPECT_EQ(failureOf(issueWith(R"("customfield_1":[1,)" + GetParam() + R"(],"summary":"x")")),
              QString());
}

TEST_P(HugeNumber, InAMemberThatIsReadNamesItsPlace)
{
    EXPECT_EQ(failureOf(issueWith(R"("attachment":[{"id":"1","filename":"a","size":)" + GetParam() +
                                  "}]")),
              u"issues[0].fields.attachment[0].size : nombre trop grand"_s);
    EXPECT_EQ(failureOf(issueWith(R"("summary":)" + GetParam())),
              u"issues[0].fields.summary : texte attendu"_s);
}

INSTANTIATE_TEST_SUITE_P(WireDecoding, HugeNumber,
                         testing::Values("1e400", "-1E+999", "18446744073709551616",
                                         "-18446744073709551617",
                                         QByteArray("1") + QByteArray(500, '0'),
                                         QByteArray("-1") + QByteArray(400, '7') + ".5e2"));

TEST(WireDecoding, HugeNumbersMakeNoBrokenTextWhole)
{
    for (const QByteArray number : {"1e400x", "01e400", "1e", "1.e400", "--1e400", "1e400.5"})
        EXPECT_NE(failureOf(R"({"total":)" + number + R"(,"issues":[]})"), QString())
            << number.constData();
}

TEST(WireDecoding, DigitsInATextAreNoNumber)
{
    const auto page = decodeWire<SearchResponseDTO>(
        R"({"total":1e400,"issues":[],"nextPageToken":"1e999 \" 123456789012345678901234"})");
    ASSERT_TRUE(page);
    EXPECT_EQ(page->nextPageToken, u"1e999 \" 123456789012345678901234"_s);
}

QByteArray pageOf(int count, const QByteArray &issue)
{
    return R"({"issues":[)" + (issue + ",").repeated(count - 1) + issue + "]}";
}

TEST(WireDecoding, APageMayHoldSomewhatMoreThanWasAskedFor)
{
    EXPECT_EQ(failureOf(pageOf(1000, R"({"id":"","key":"","fields":{}})")), QString());
}

TEST(WireDecoding, APageThatHoldsManyTimesWhatWasAskedForIsRefused)
{
    EXPECT_EQ(failureOf(pageOf(1001, R"({"id":"","key":"","fields":{}})")),
              u"issues : trop d'éléments"_s);
}

/// The limit of a page says nothing about what is inside of its issues.
TEST(WireDecoding, TheRecordsOfAPageAreBoundedTogether)
{
    const QByteArray subtasks = R"({"subtasks":[)" +
                                QByteArray(R"({"id":"","key":""},)").repeated(9999) +
                                R"({"id":"","key":""}]})";
    EXPECT_EQ(failureOf(pageOf(1, R"({"id":"","key":"","fields":)" + subtasks + "}")), QString());
    EXPECT_TRUE(failureOf(pageOf(100, R"({"id":"","key":"","fields":)" + subtasks + "}"))
                    .endsWith(u"fields.subtasks : trop d'éléments"_s));
}

TEST(WireDecoding, SoAreThePartsOfItsDocuments)
{
    const QByteArray text = R"({"type":"doc","content":[)" +
                            QByteArray(R"({"type":""},)").repeated(2000000) + R"({"type":""}]})";
    EXPECT_EQ(failureOf(issueWith(R"("description":)" + text)),
              u"issues[0].fields.description : trop d'éléments"_s);
}

TEST(WireDecoding, AnEmptyBodyIsNoAnswer)
{
    EXPECT_FALSE(failureOf({}).isEmpty());
    EXPECT_FALSE(failureOf("  \n").isEmpty());
}

TEST(WireDecoding, APageIsNoAnswer)
{
    EXPECT_FALSE(failureOf("<!DOCTYPE html><html></html>").isEmpty());
}

TEST(WireDecoding, ATruncatedAnswerIsNone)
{
    const QByteArray whole = issueWith(R"("summary":"x")");
    ASSERT_EQ(failureOf(whole), QString());
    for (qsizetype size = 0; size < whole.size(); ++size)
        EXPECT_FALSE(failureOf(whole.left(size)).isEmpty()) << size;
}

TEST(WireDecoding, TwoAnswersAreNone)
{
    EXPECT_FALSE(failureOf(R"({"issues":[]}{"issues":[]})").isEmpty());
}

TEST(WireDecoding, OfAMemberGivenTwiceTheLastCounts)
{
    const auto page = decodeWire<SearchResponseDTO>(R"({"issues":[],"isLast":true,"isLast":null})");
    ASSERT_TRUE(page);
    EXPECT_EQ(page->isLast, std::nullopt);
}

TEST(WireDecoding, AListGivenTwiceIsNotJoined)
{
    const auto page = decodeWire<SearchResponseDTO>(
        R"({"issues":[{"id":"1","key":"A-1","fields":{}}],"issues":[]})");
    ASSERT_TRUE(page);
    EXPECT_TRUE(page->issues.isEmpty());
}

TEST(WireDecoding, ATextMayHoldAnyCharacter)
{
    const auto page =
        decodeWire<SearchResponseDTO>(issueWith(R"("summary":"\u0000\n\"\ud83d\ude80é")"));
    ASSERT_TRUE(page);
    EXPECT_EQ(page->issues[0].fields.summary, QString(QChar(0)) + u"\n\"🚀é"_s);
}

TEST(WireDecoding, HalfASurrogatePairIsNoText)
{
    EXPECT_FALSE(failureOf(issueWith(R"("summary":"\ud83d")")).isEmpty());
    EXPECT_FALSE(failureOf(issueWith(R"("summary":"\ude80")")).isEmpty());
}

TEST(WireDecoding, BytesThatAreNotUTF8AreNoText)
{
    EXPECT_FALSE(failureOf(issueWith("\"summary\":\"\xff\"")).isEmpty());
    EXPECT_FALSE(failureOf(issueWith("\"x\":\"\xc3\"")).isEmpty());
}

TEST(WireDecoding, NumbersBeyondADoubleAreRefused)
{
    EXPECT_FALSE(failureOf(issueWith(R"("summary":1e999)")).isEmpty());
    EXPECT_FALSE(failureOf(issueWith("\"summary\":" + QByteArray(5000, '9'))).isEmpty());
}

TEST(WireDecoding, NestingBeyondTheParserIsRefused)
{
    EXPECT_FALSE(failureOf(issueWith("\"x\":" + nested(100'000, "1"))).isEmpty());
    EXPECT_FALSE(failureOf(QByteArray("[").repeated(1'000'000)).isEmpty());
}

TEST(WireDecoding, WhatIsNoJSONIsToldInFrench)
{
    EXPECT_EQ(failureOf(""), u"contenu vide"_s);
    EXPECT_EQ(failureOf("{\"a\":\"\xff\"}"), u"caractères qui ne sont pas en UTF-8"_s);
    EXPECT_EQ(failureOf(nested(100'000, "1")), u"imbrication trop profonde"_s);
    EXPECT_EQ(failureOf(R"({"a":01})"), u"nombre invalide"_s);
    EXPECT_EQ(failureOf(R"({"a":"\x"})"), u"texte mal formé"_s);
    EXPECT_EQ(failureOf(R"({"a":"b)"), u"texte mal formé"_s);
    EXPECT_EQ(failureOf("<!doctype html>"), u"JSON mal formé"_s);
}

TEST(WireDecoding, UnknownMembersMayNestDeeply)
{
    EXPECT_EQ(failureOf(issueWith("\"x\":" + nested(500, "1"))), QString());
}

TEST(WireDecoding, ADocumentBeyondItsBoundNamesThePlace)
{
    const QString failure =
        failureOf(issueWith("\"description\":" + documentOfDepth(ADFCoding::maximumDepth + 1)));
    EXPECT_TRUE(failure.startsWith(u"issues[0].fields.description.content[0]"_s))
        << failure.toStdString();
}

TEST(WireDecoding, ADocumentAtItsBoundIsRead)
{
    EXPECT_EQ(failureOf(issueWith("\"description\":" + documentOfDepth(ADFCoding::maximumDepth))),
              QString());
}

TEST(WireDecoding, AnErrorHasAtMost240Characters)
{
    const auto user = decodeWire<UserDTO>(R"({"accountId":"u","avatarUrls":{")" +
                                          QByteArray(10'000, 'n') + R"(":7}})");
    ASSERT_FALSE(user);
    EXPECT_EQ(user.error().detail, u"avatarUrls."_s + QString(229, u'n'));
}

TEST(WireDecoding, AShortenedErrorEndsBetweenCharacters)
{
    const auto user = decodeWire<UserDTO>(R"({"accountId":"u","avatarUrls":{")" +
                                          QByteArray("🚀").repeated(1000) + R"(":7}})");
    ASSERT_FALSE(user);
    EXPECT_EQ(user.error().detail, u"avatarUrls."_s + u"🚀"_s.repeated(229));
}

TEST(WireDecoding, AnErrorOfOneEndlessCharacterIsBounded)
{
    const auto user = decodeWire<UserDTO>(R"({"accountId":"u","avatarUrls":{"e)" +
                                          QByteArray("\xCC\x81").repeated(100'000) + R"(":7}})");
    ASSERT_FALSE(user);
    EXPECT_LT(user.error().detail.size(), 5000);
}

TEST(WireDecoding, ADateIsATextOrNull)
{
    EXPECT_EQ(failureOf(issueWith(R"("created":null,"updated":"hier","duedate":null)")), QString());
    EXPECT_EQ(failureOf(issueWith(R"("created":7)")),
              u"issues[0].fields.created : texte attendu"_s);
    EXPECT_EQ(failureOf(issueWith(R"("duedate":{})")),
              u"issues[0].fields.duedate : texte attendu"_s);
}

TEST(WireDecoding, TheSecondOfTwoDatesCounts)
{
    const auto page = decodeWire<SearchResponseDTO>(
        issueWith(R"("duedate":"2026-10-02","duedate":null,"created":"2026-10-02T08:00:00Z",)"
                  R"("created":"hier")"));
    ASSERT_TRUE(page);
    EXPECT_EQ(page->issues[0].fields.duedate, std::nullopt);
    EXPECT_EQ(page->issues[0].fields.created, std::nullopt);
}

TEST(WireDecoding, APageOf100IssuesIsReadWhole)
{
    QByteArrayList issues;
    for (int i = 0; i < 100; ++i)
        issues.append(R"({"id":")" + QByteArray::number(i) + R"(","key":"A-1","fields":{}})");
    const auto page = decodeWire<SearchResponseDTO>(R"({"issues":[)" + issues.join(',') + "]}");
    ASSERT_TRUE(page);
    ASSERT_EQ(page->issues.size(), 100);
    EXPECT_EQ(page->issues[99].id, u"99"_s);
}

const QByteArray Sample =
    R"({"issues":[{"id":"1","key":"A-1","fields":{"summary":"é\u00e9","status":{"id":"1","name":)"
    R"("B","statusCategory":{"key":"new"}},"labels":["a","b"],"created":)"
    R"("2026-10-01T08:00:00.000+0000","duedate":"2026-10-02","description":{"type":"doc",)"
    R"("version":1,"content":[{"type":"media","attrs":{"n":1.5e3,"t":true}}]},"attachment":[{)"
    R"("id":"5","filename":"x","size":12}]},"changelog":{"histories":[{"created":)"
    R"("2026-10-01T08:00:00.000+0000","items":[{"field":"Status","toString":"C"}]}]},)"
    R"("renderedFields":{"description":"<img src='/attachment/content/5'>"}}],"isLast":false})";

/// The sample with one to four bytes changed, removed or repeated.
QByteArray spoiled(std::mt19937 &random)
{
    QByteArray json = Sample;
    for (unsigned edits = 1 + random() % 4; edits > 0; --edits) {
        const auto at = qsizetype(random() % quint64(json.size()));
        const unsigned kind = random() % 4;
        if (kind == 0)
            json[at] = char(random());
        else if (kind == 1)
            json.remove(at, 1 + qsizetype(random() % 8));
        else if (kind == 2)
            json.insert(at, json.mid(at, 16));
        else
            json[at] = "{}[]\",:0-.etn\\"[random() % 14];
    }
    return json;
}

TEST(WireDecoding, ASpoiledAnswerGivesRecordsOrAReason)
{
    std::mt19937 random(20261029);
    int readable = 0;
    for (int i = 0; i < 20'000; ++i) {
        const auto page = decodeWire<SearchResponseDTO>(spoiled(random));
        if (!page) {
            ASSERT_FALSE(page.error().detail.isEmpty());
            continue;
        }
        ++readable;
        for (const IssueDTO &issue : page->issues)
            ASSERT_TRUE(issue.model(QDateTime::fromMSecsSinceEpoch(0)).created.isValid());
    }
    EXPECT_GT(readable, 1000);
    EXPECT_LT(readable, 19'000);
}

} // namespace
