#include "jira/ErrorMessage.h"

#include "model/JiraError.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// The text that the user reads after an error response.
QString shown(int status, const QByteArray &body)
{
    return JiraError(JiraError::Http{status, errorMessage(body)}).message();
}

TEST(ErrorMessage, FourLinesOfA400)
{
    EXPECT_EQ(shown(400, R"({"errorMessages":["Requête refusée."],"errors":{"z":"trop long","b":)"
                         R"("obligatoire"},"message":"Bad request"})"),
              u"Requête refusée.\nb : obligatoire\nz : trop long\nBad request"_s);
}

TEST(ErrorMessage, A404WithOneMessageShowsItAlone)
{
    EXPECT_EQ(shown(404, R"({"errorMessages":["Issue does not exist"],"errors":{}})"),
              u"Issue does not exist"_s);
}

TEST(ErrorMessage, A404WithAnEmptyBodyShowsTheFixedSentence)
{
    EXPECT_EQ(shown(404, {}), u"Ressource introuvable dans Jira (404)."_s);
}

TEST(ErrorMessage, A502WithAPageShowsItsNumber)
{
    EXPECT_EQ(shown(502, "<html><body>Bad gateway</body></html>"), u"Erreur Jira 502."_s);
}

TEST(ErrorMessage, A502WithAShortTextShowsIt)
{
    EXPECT_EQ(shown(502, "upstream unreachable"), u"upstream unreachable"_s);
}

TEST(ErrorMessage, A401ShowsTheFixedSentenceWhateverItsBody)
{
    EXPECT_EQ(shown(401, R"({"message":"Client must be authenticated"})"),
              u"Jira a refusé les identifiants (401). Vérifie l'e-mail et le token API."_s);
}

TEST(ErrorMessage, A403KeepsTheMessageBehindTheFixedSentence)
{
    EXPECT_EQ(shown(403, R"({"message":"Not yours"})"),
              u"Accès refusé par Jira (403). Not yours"_s);
}

TEST(ErrorMessage, A403WithoutWordsShowsTheSentenceAlone)
{
    EXPECT_EQ(shown(403, "{}"), u"Accès refusé par Jira (403)."_s);
}

TEST(ErrorMessage, JiraMayHaveNothingToSay)
{
    EXPECT_EQ(errorMessage(R"({"errorMessages":[],"errors":{}})"), QString());
    EXPECT_EQ(errorMessage(R"({"errorMessages":null,"errors":null,"message":null})"), QString());
}

TEST(ErrorMessage, MembersThatAreNotKnownAreIgnored)
{
    EXPECT_EQ(errorMessage(R"({"message":"Trop de requêtes","status-code":429,"sub":[{}]})"),
              u"Trop de requêtes"_s);
}

TEST(ErrorMessage, JSONOfAnotherFormIsShownAsText)
{
    EXPECT_EQ(errorMessage(R"({"errors":["a"]})"), uR"({"errors":["a"]})"_s);
    EXPECT_EQ(errorMessage(R"("gone")"), uR"("gone")"_s);
}

TEST(ErrorMessage, OfALongTextTheFirst300BytesAreShown)
{
    EXPECT_EQ(errorMessage(QByteArray(301, 'a')), QString(300, u'a'));
}

TEST(ErrorMessage, OfALongMessageTheStartIsShown)
{
    const QByteArray message(30LL * 1024 * 1024, 'a');
    const QString shown = QString(1000, u'a') + u'…';
    EXPECT_EQ(errorMessage("{\"message\":\"" + message + "\"}"), shown);
    EXPECT_EQ(errorMessage("{\"errors\":{\"" + message + "\":\"b\"}}"), shown);
    EXPECT_EQ(errorMessage("{\"message\":\"" + QByteArray(1000, 'a') + "\"}"), QString(1000, u'a'));
}

TEST(ErrorMessage, ACharacterCutAtByte300EmptiesTheMessage)
{
    EXPECT_EQ(errorMessage(QByteArray(299, 'a') + "é"), QString());
    EXPECT_EQ(errorMessage(QByteArray(298, 'a') + "éz"), QString(298, u'a') + u'é');
}

TEST(ErrorMessage, BytesThatAreNoTextAreNotShown)
{
    EXPECT_EQ(errorMessage("\xff\xfe oops"), QString());
}

TEST(ErrorMessage, APageBehindABlankIsShownAsText)
{
    EXPECT_EQ(errorMessage(" <p>no</p>"), u" <p>no</p>"_s);
}

} // namespace
