#include "model/JiraError.h"

using namespace Qt::StringLiterals;

namespace {

QString httpText(int status, const QString &message)
{
    if (status == 401)
        return u"Jira a refusé les identifiants (401). Vérifie l'e-mail et le token API."_s;
    if (status == 403) {
        const QString refusal = u"Accès refusé par Jira (403)."_s;
        return message.isEmpty() ? refusal : refusal + u' ' + message;
    }
    if (!message.isEmpty())
        return message;
    if (status == 404)
        return u"Ressource introuvable dans Jira (404)."_s;
    return "Erreur Jira "_L1 + QString::number(status) + u'.';
}

struct TextOfCase
{
    QString operator()(const JiraError::Http &http) const
    {
        return httpText(http.status, http.message);
    }
    QString operator()(const JiraError::Decoding &decoding) const
    {
        return u"Réponse Jira illisible : "_s + decoding.detail;
    }
    QString operator()(const JiraError::TransitionUnavailable &unavailable) const
    {
        return u"Le workflow Jira ne permet pas de passer à « "_s + unavailable.statusName +
               u" » depuis le statut actuel."_s;
    }
    QString operator()(const JiraError::InvalidResponse &) const
    {
        return u"Réponse inattendue de Jira."_s;
    }
    QString operator()(const JiraError::InvalidSite &) const
    {
        return u"Adresse du site Jira invalide. Exemple : mon-equipe.atlassian.net"_s;
    }
};

} // namespace

JiraError::JiraError(Case value)
    : Failure(std::visit(TextOfCase(), value)), m_value(std::move(value))
{
}
