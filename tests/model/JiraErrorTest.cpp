#include "model/JiraError.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

QString textOf(int status, const QString &message)
{
    return JiraError(JiraError::Http{status, message}).message();
}

TEST(JiraError, UnauthorizedHidesWhatJiraSaid)
{
    const QString expected =
        u"Jira a refusé les identifiants (401). Vérifie l'e-mail et le token API."_s;
    EXPECT_EQ(textOf(401, {}), expected);
    EXPECT_EQ(textOf(401, u"Client must be authenticated"_s), expected);
}

TEST(JiraError, ForbiddenPutsWhatJiraSaidBehindItsSentence)
{
    EXPECT_EQ(textOf(403, {}), u"Accès refusé par Jira (403)."_s);
    EXPECT_EQ(textOf(403, u"Pas de droit."_s), u"Accès refusé par Jira (403). Pas de droit."_s);
}

TEST(JiraError, NotFoundWithoutWordsSaysSoItself)
{
    EXPECT_EQ(textOf(404, {}), u"Ressource introuvable dans Jira (404)."_s);
    EXPECT_EQ(textOf(404, u"Le ticket X n'existe pas."_s), u"Le ticket X n'existe pas."_s);
}

TEST(JiraError, OtherStatusesShowTheMessageOrTheNumber)
{
    EXPECT_EQ(textOf(502, {}), u"Erreur Jira 502."_s);
    EXPECT_EQ(textOf(502, u"Bad gateway"_s), u"Bad gateway"_s);
}

TEST(JiraError, OtherCasesHaveTheirSentences)
{
    EXPECT_EQ(JiraError(JiraError::Decoding{u"champ absent"_s}).message(),
              u"Réponse Jira illisible : champ absent"_s);
    EXPECT_EQ(JiraError(JiraError::TransitionUnavailable{u"En test"_s}).message(),
              u"Le workflow Jira ne permet pas de passer à « En test » depuis le statut actuel."_s);
    EXPECT_EQ(JiraError(JiraError::InvalidResponse{}).message(), u"Réponse inattendue de Jira."_s);
    EXPECT_TRUE(JiraError(JiraError::InvalidSite{})
                    .message()
                    .startsWith(u"Adresse du site Jira invalide. Exemple : "_s));
}

TEST(JiraError, IsAFailureWithItsCase)
{
    try {
        throw JiraError(JiraError::Http{404, {}});
    } catch (const Failure &failure) {
        EXPECT_EQ(QString::fromUtf8(failure.what()), failure.message());
        const auto *error = dynamic_cast<const JiraError *>(&failure);
        ASSERT_NE(error, nullptr);
        EXPECT_EQ(error->value(), JiraError::Case(JiraError::Http{404, {}}));
    }
}

} // namespace
