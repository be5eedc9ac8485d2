#include "jira/matrix/Fault.h"

using namespace Qt::StringLiterals;

namespace {

const QString noDownload = u"Téléchargement de « plan.txt » impossible."_s;
const QString words = u"Le projet est archivé."_s;

RawAnswer status(int status)
{
    return RawAnswer::http(status, {});
}

RawAnswer withWords(int status)
{
    return RawAnswer::json("{\"errorMessages\":[\"" + words.toUtf8() + "\"]}", status);
}

/// A refusal for which downloads fail with their own text, whatever the site's message is.
Fault refusal(const char *name, const RawAnswer &answer, const QString &text)
{
    return {.name = name, .texts = {.reading = text, .download = noDownload}, .answer = answer};
}

} // namespace

const QList<Fault> &refusals()
{
    static const QString login =
        u"Jira a refusé les identifiants (401). Vérifie l'e-mail et le token API."_s;
    static const QString denied = u"Accès refusé par Jira (403)."_s;
    static const QList<Fault> all = {
        refusal("Status400",
                RawAnswer::json(R"({"errorMessages":["Requête refusée."],)"
                                R"("errors":{"z":"trop long","b":"absent"},"message":"Voilà."})",
                                400),
                u"Requête refusée.\nb : absent\nz : trop long\nVoilà."_s),
        {.name = "Status401", .texts = {login}, .answer = withWords(401)},
        {.name = "Status401WithAChallenge",
         .texts = {login},
         .answer = RawAnswer::http(401, {}, {{"WWW-Authenticate", "Basic realm=\"Jira\""}})},
        {.name = "Status403",
         .texts = {.reading = denied, .download = denied + u' ' + noDownload},
         .answer = status(403)},
        {.name = "Status403WithWords",
         .texts = {.reading = denied + u' ' + words, .download = denied + u' ' + noDownload},
         .answer = withWords(403)},
        refusal("Status404", status(404), u"Ressource introuvable dans Jira (404)."_s),
        refusal("Status404WithWords", withWords(404), words),
        refusal("Status410", status(410), u"Erreur Jira 410."_s),
        {.name = "Status413",
         .texts = {.reading = u"Erreur Jira 413."_s,
                   .upload = u"Fichier trop volumineux pour Jira."_s,
                   .download = noDownload},
         .answer = status(413)},
        refusal("Status429", status(429), u"Erreur Jira 429."_s),
        refusal("Status429WithRetryAfter",
                RawAnswer::http(429, R"({"message":"Rate limit exceeded.","status-code":429})",
                                {{"Retry-After", "30"}}),
                u"Rate limit exceeded."_s),
        refusal("Status500", status(500), u"Erreur Jira 500."_s),
        refusal("Status502WithAPage",
                RawAnswer::html("<html><body><h1>Bad Gateway</h1></body></html>", 502),
                u"Erreur Jira 502."_s),
        refusal("Status503", status(503), u"Erreur Jira 503."_s),
    };
    return all;
}
