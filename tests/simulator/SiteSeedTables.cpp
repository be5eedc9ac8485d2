#include "simulator/SiteSeedTables.h"

using namespace Qt::StringLiterals;

namespace {

SiteUser person(int number, const QString &name, const QString &email)
{
    return {u"5f0c%1"_s.arg(number, 4, 10, QChar(u'0')), name, email, u"atlassian"_s, true};
}

QList<SiteIssueType> types(bool hasEpics)
{
    QList<SiteIssueType> types = {{u"10001"_s, u"Story"_s, 0},
                                  {u"10002"_s, u"Tâche"_s, 0},
                                  {u"10003"_s, u"Bug"_s, 0},
                                  {u"10004"_s, u"Sous-tâche"_s, -1}};
    if (hasEpics)
        types.prepend({u"10000"_s, u"Epic"_s, 1});
    return types;
}

/// The workflow of most projects: all transitions are allowed, except that only issues in progress can go to review.
SiteProject software(const QString &id, const QString &key, const QString &name)
{
    return {.id = id,
            .key = key,
            .name = name,
            .typeKey = u"software"_s,
            .types = types(true),
            .statuses = {{u"10100"_s, u"Backlog"_s, u"new"_s},
                         {u"10101"_s, u"À faire"_s, u"new"_s},
                         {u"3"_s, u"En cours"_s, u"indeterminate"_s},
                         {u"10102"_s, u"En revue"_s, u"indeterminate"_s},
                         {u"10103"_s, u"Terminé"_s, u"done"_s},
                         {u"10104"_s, u"Annulé"_s, u"done"_s}},
            .transitions = {{u"11"_s, u"Mettre au backlog"_s, {}, u"10100"_s},
                            {u"21"_s, u"Planifier"_s, {}, u"10101"_s},
                            {u"31"_s, u"Commencer"_s, {}, u"3"_s},
                            {u"41"_s, u"Demander une revue"_s, {u"3"_s}, u"10102"_s},
                            {u"51"_s, u"Terminer"_s, {}, u"10103"_s},
                            {u"61"_s, u"Abandonner"_s, {}, u"10104"_s}}};
}

SiteProject serviceDesk()
{
    return {.id = u"10004"_s,
            .key = u"AIDE"_s,
            .name = u"Centre d’aide"_s,
            .typeKey = u"service_desk"_s,
            .types = {{u"10020"_s, u"Incident"_s, 0}, {u"10021"_s, u"Demande de service"_s, 0}},
            .statuses = {{u"10200"_s, u"Ouvert"_s, u"new"_s},
                         {u"10201"_s, u"En attente du client"_s, u"indeterminate"_s},
                         {u"3"_s, u"En cours"_s, u"indeterminate"_s},
                         {u"10202"_s, u"Résolu"_s, u"done"_s}},
            .transitions = {{u"11"_s, u"Prendre en charge"_s, {}, u"3"_s},
                            {u"21"_s, u"Répondre au client"_s, {u"3"_s}, u"10201"_s},
                            {u"31"_s, u"Résoudre"_s, {}, u"10202"_s},
                            {u"41"_s, u"Rouvrir"_s, {u"10202"_s}, u"10200"_s}},
            .hasSprints = false};
}

SiteProject withoutSprints()
{
    SiteProject project = software(u"10005"_s, u"RH"_s, u"Ressources humaines"_s);
    project.typeKey = u"business"_s;
    project.types = types(false);
    project.hasSprints = false;
    return project;
}

} // namespace

QList<SiteUser> SiteSeedTables::users()
{
    QList<SiteUser> all = {
        person(1, u"Camille Rousseau"_s, u"camille@lumen.example"_s),
        person(2, u"Léa Fontaine"_s, u"lea@lumen.example"_s),
        person(3, u"Étienne Garnier"_s, {}),
        person(4, u"Nadia Benali"_s, u"nadia@lumen.example"_s),
        person(5, u"Hugo Lefèvre"_s, {}),
        person(6, u"Inès Moreau"_s, u"ines@lumen.example"_s),
        person(7, u"Zoé Œrtel"_s, {}),
        person(8, u"Yann Le Gall"_s, u"yann@lumen.example"_s),
        person(9, u"Aïcha Diallo"_s, {}),
        person(10, u"Théo Marchand"_s, u"theo@lumen.example"_s),
        person(11, u"Margaux d’Aubigné"_s, {}),
        person(12, u"Paul Ancien"_s, {}),
    };
    all.last().isActive = false;
    all += {u"557058:robot"_s, u"Automation for Jira"_s, {}, u"app"_s, true};
    all += {u"qm:client-1"_s, u"Cliente du portail"_s, u"cliente@exemple.example"_s, u"customer"_s,
            true};
    return all;
}

QList<SitePriority> SiteSeedTables::priorities()
{
    return {{u"1"_s, u"Highest"_s},
            {u"2"_s, u"High"_s},
            {u"3"_s, u"Medium"_s},
            {u"4"_s, u"Low"_s},
            {u"5"_s, u"Lowest"_s}};
}

QList<SiteSprint> SiteSeedTables::sprints()
{
    return {{u"1"_s, u"Sprint 41"_s, SiteSprint::State::Closed},
            {u"2"_s, u"Sprint 42"_s, SiteSprint::State::Open},
            {u"3"_s, u"Sprint 43"_s, SiteSprint::State::Future}};
}

QList<SiteProject> SiteSeedTables::projects()
{
    return {software(u"10000"_s, u"PORT"_s, u"Portail client"_s),
            software(u"10001"_s, u"FACT"_s, u"Facturation"_s),
            software(u"10002"_s, u"MOB"_s, u"Application mobile"_s),
            software(u"10003"_s, u"ENTR"_s, u"Entrepôt"_s),
            serviceDesk(),
            withoutSprints()};
}

const QStringList &SiteSeedTables::actions()
{
    static const QStringList texts = {
        u"Corriger"_s, u"Ajouter"_s,   u"Revoir"_s,   u"Simplifier"_s, u"Documenter"_s,
        u"Tester"_s,   u"Remplacer"_s, u"Préparer"_s, u"Accélérer"_s,  u"Supprimer"_s};
    return texts;
}

const QStringList &SiteSeedTables::things()
{
    static const QStringList texts = {
        u"le calcul de la TVA"_s,          u"l’export des factures"_s,   u"la page d’accueil"_s,
        u"la connexion par SSO"_s,         u"le suivi des colis"_s,      u"l’inventaire annuel"_s,
        u"la recherche « plein texte »"_s, u"les relances par e-mail"_s, u"l’écran des congés"_s,
        u"le cache des images"_s,          u"la synchronisation"_s,      u"les droits d’accès"_s};
    return texts;
}

const QStringList &SiteSeedTables::circumstances()
{
    static const QStringList texts = {
        u"pour les comptes inactifs"_s, u"avant la mise en production"_s, u"sur tablette"_s,
        u"à la demande du siège"_s,     u"depuis la version 4.2"_s,       u"en fin de mois"_s,
        u"dans l’API publique"_s,       u"après une coupure réseau"_s,    u"pour l’audit"_s};
    return texts;
}

const QStringList &SiteSeedTables::sentences()
{
    static const QStringList texts = {
        u"Le problème se produit une fois sur deux."_s,
        u"Voir la capture jointe et le fil de discussion avec l’équipe d’exploitation."_s,
        u"À valider avec la comptabilité avant de livrer."_s,
        u"J’ai reproduit le cas sur l’environnement de recette."_s,
        u"Le correctif est prêt, il manque un test sur les montants négatifs."_s,
        u"On attend le retour du prestataire."_s,
        u"Fait, déployé hier soir sans incident."_s};
    return texts;
}

const QStringList &SiteSeedTables::labels()
{
    static const QStringList texts = {u"backend"_s,  u"frontend"_s, u"dette-technique"_s,
                                      u"sécurité"_s, u"urgent"_s,   u"à-chiffrer"_s};
    return texts;
}
