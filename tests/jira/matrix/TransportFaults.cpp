#include "jira/matrix/Fault.h"

using namespace Qt::StringLiterals;

namespace {

using Place = Fault::Place;
using Ending = RawAnswer::Ending;

constexpr std::optional<QString> succeeds = std::nullopt;

const QString connectionLost = u"La connexion au serveur a été interrompue."_s;
const QString timedOut = u"Le serveur n'a pas répondu à temps."_s;
const QString noDownload = u"Téléchargement de « plan.txt » impossible."_s;

QString unreadable(const QString &detail)
{
    return u"Réponse Jira illisible : "_s + detail;
}

/// A well-formed response with contents that no operation can use.
RawAnswer plain()
{
    return RawAnswer::json(R"({"errorMessages":[],"values":[],"comments":[]})");
}

QList<Fault> brokenConnections()
{
    return {
        {"DnsFailure",
         Place::Name,
         {u"Serveur introuvable. Vérifie l'adresse du site et ta connexion à Internet."_s},
         {}},
        {"Refused",
         Place::Port,
         {u"Le serveur refuse la connexion. Vérifie l'adresse du site."_s},
         {}},
        {"ResetBeforeHeaders", Place::Answer, {connectionLost}, RawAnswer::nothing(Ending::Reset)},
        {"ResetWithinTheBody", Place::Answer, {connectionLost}, plain().cut(9, Ending::Reset)},
        {"WrongHost",
         Place::Certificate,
         {u"Connexion non sécurisée : le certificat du serveur n'est pas établi pour ce site."_s},
         {},
         Certificates::Kind::OtherHost},
        {"Expired",
         Place::Certificate,
         {u"Connexion non sécurisée : le certificat du serveur a expiré."_s},
         {},
         Certificates::Kind::Expired},
        {"UnknownAuthority",
         Place::Certificate,
         {u"Connexion non sécurisée : le certificat du serveur vient d'une autorité inconnue."_s},
         {},
         Certificates::Kind::Stranger},
        {"NoAnswerInTime", Place::Time, {timedOut}, RawAnswer::nothing(Ending::Stall)},
        {"StalledBody", Place::Time, {timedOut}, plain().cut(9, Ending::Stall)},
        {"TruncatedBody", Place::Answer, {connectionLost}, plain().cut(9, Ending::Close)},
    };
}

RawAnswer withHeader(const QByteArray &name, const QByteArray &value, const QByteArray &body)
{
    return RawAnswer::http(200, body, {{"Content-Type", "application/json"}, {name, value}});
}

/// Responses that are not JSON or not the expected JSON. Operations that ignore the contents succeed with them.
QList<Fault> brokenAnswers()
{
    return {
        {"WrongLength",
         Place::Answer,
         {.reading = unreadable(u"…"_s), .ignoring = succeeds, .download = noDownload},
         withHeader("Content-Length", "5", R"({"values":[]})")},
        {"BrokenGzip",
         Place::Answer,
         {u"La réponse du serveur est endommagée."_s},
         withHeader("Content-Encoding", "gzip", "\x1F\x8B\x08 no gzip at all")},
        {"ForAnybody",
         Place::Answer,
         {u"Jira a refusé les identifiants (401). Vérifie l'e-mail et le token API."_s},
         withHeader("X-Seraph-LoginReason", "AUTHENTICATED_FAILED", R"({"issues":[]})")},
        {"InvalidUtf8",
         Place::Answer,
         {.reading = unreadable(u"caractères qui ne sont pas en UTF-8"_s),
          .ignoring = succeeds,
          .download = noDownload},
         RawAnswer::json("{\"accountId\":\"\xC3\x28\"}")},
        {"HtmlWith200",
         Place::Answer,
         {.reading = unreadable(u"JSON mal formé"_s), .ignoring = succeeds, .download = noDownload},
         RawAnswer::html("<!doctype html><title>Connexion</title>")},
        {"Empty200",
         Place::Answer,
         {.reading = unreadable(u"contenu vide"_s), .ignoring = succeeds, .download = noDownload},
         RawAnswer::json({})},
        {"WrongType",
         Place::Answer,
         {.reading = unreadable(u"objet attendu"_s),
          .readingList = unreadable(u"liste attendue"_s),
          .ignoring = succeeds,
          .upload = unreadable(u"liste attendue"_s),
          .download = noDownload},
         RawAnswer::json("42")},
        {"HundredMegabytes",
         Place::Answer,
         {.reading = u"La réponse du serveur est trop volumineuse."_s, .download = noDownload},
         RawAnswer::large(100LL << 20, 100LL << 20, "application/json")},
        {"RedirectLoop",
         Place::Answer,
         {.reading = u"Le serveur redirige sans fin."_s,
          .changing = u"Le site n'a pas fait la modification : il redirige vers une autre page."_s},
         RawAnswer::redirect("/rest/api/3/again")},
    };
}

} // namespace

const QList<Fault> &transportFaults()
{
    static const QList<Fault> all = brokenConnections() + brokenAnswers();
    return all;
}
