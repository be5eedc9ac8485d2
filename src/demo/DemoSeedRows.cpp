#include "demo/DemoSeedRows.h"

#include <algorithm>
#include <array>

namespace DemoSeed {

namespace {

using enum Person;
using enum RowStatus;
using enum RowPriority;
using enum RowType;
using enum Planning;
using std::nullopt;

// clang-format off
constexpr auto rowTable = std::to_array<Row>({
    {u"MOB-101", u"Connexion avec Apple : le jeton expire après 24 h", InProgress, Highest, Me, u"auth ios", Bug, Sprint, 0.05, {}, 2},
    {u"MOB-102", u"Onboarding : nouvelle illustration et animation d'entrée", InReview, Medium, Nora, u"design", Story, Sprint, 0.3, {}, {}},
    {u"MOB-103", u"Notifications push : regrouper par conversation", Todo, High, Me, u"notifications", Story, Sprint, 1.2, {}, {}},
    {u"MOB-104", u"Crash au démarrage sur Android 15 (Pixel 8)", Todo, Highest, Basile, u"android crash", Bug, Sprint, 0.6, {}, 1},
    {u"MOB-105", u"Mode hors ligne : file d'attente des actions", Backlog, High, nullopt, u"offline", Epic, Later, 6, {}, {}},
    {u"MOB-106", u"Mettre à jour React Native vers 0.81", InProgress, Medium, Yann, u"tech-debt", Task, Sprint, 0.9, {}, {}},
    {u"MOB-107", u"Retour haptique sur les actions de swipe", Done, Low, Nora, u"ios", Task, Sprint, 2, {}, {}},
    {u"MOB-108", u"L'envoi de fichiers de plus de 50 Mo échoue en 4G", Backlog, Medium, nullopt, u"upload", Bug, Later, 9, {}, {}},
    {u"MOB-109", u"Widget écran d'accueil : prochaines échéances", Backlog, Low, nullopt, u"ios widget", Story, Later, 12, {}, {}},
    {u"MOB-110", u"Accessibilité : libellés VoiceOver manquants sur la timeline", Todo, Medium, Maud, u"a11y", Task, Sprint, 1.5, {}, {}},
    {u"MOB-111", u"Supprimer l'ancien écran de paramètres", Cancelled, Lowest, Maud, u"", Task, Later, 4, {}, {}},
    {u"MOB-112", u"Lien magique : ouvrir l'app au lieu du navigateur", InProgress, High, Me, u"auth", Story, Sprint, 0.2, {}, {}},
    {u"WEB-201", u"Refonte de la page de facturation", InProgress, High, Elsa, u"billing", Epic, Sprint, 0.4, {}, {}},
    {u"WEB-202", u"Export CSV des factures avec filtres", InReview, Medium, Me, u"billing export", Story, Sprint, 0.1, u"WEB-201", {}},
    {u"WEB-203", u"La recherche globale ignore les accents", Todo, High, Me, u"search", Bug, Sprint, 0.8, {}, {}},
    {u"WEB-204", u"SSO SAML pour les comptes Entreprise", Todo, Highest, Basile, u"auth enterprise", Story, Sprint, 1.1, {}, 5},
    {u"WEB-205", u"Tableau de bord : chargement initial supérieur à 3 s", InProgress, High, Yann, u"perf", Bug, Sprint, 0.25, {}, {}},
    {u"WEB-206", u"Raccourcis clavier dans l'éditeur de documents", Backlog, Medium, nullopt, u"editor", Story, Later, 15, {}, {}},
    {u"WEB-207", u"Migrer les e-mails transactionnels vers Resend", Done, Medium, Elsa, u"infra", Task, Sprint, 3, {}, {}},
    {u"WEB-208", u"Mode sombre : contraste insuffisant sur les badges", Done, Low, Maud, u"design a11y", Bug, Sprint, 5, {}, {}},
    {u"WEB-209", u"Webhooks : signature HMAC et rejeu des évènements", Backlog, High, nullopt, u"api", Story, Later, 7, {}, {}},
    {u"WEB-210", u"Journal d'audit pour les administrateurs", Backlog, Medium, nullopt, u"enterprise", Story, Later, 20, {}, {}},
    {u"WEB-211", u"API publique : pagination cassée au-delà de 10 000 résultats", Todo, Medium, Yann, u"api", Bug, Sprint, 2.5, {}, {}},
    {u"WEB-212", u"Maquette de la facture PDF", Done, Medium, Nora, u"billing design", Subtask, Sprint, 2.2, u"WEB-201", {}},
    {u"WEB-213", u"Calcul de la TVA intracommunautaire", InProgress, High, Elsa, u"billing", Subtask, Sprint, 0.5, u"WEB-201", {}},
    {u"DS-31", u"Combobox avec recherche asynchrone", InProgress, Medium, Maud, u"components", Story, Sprint, 0.7, {}, {}},
    {u"DS-32", u"Tokens de couleur : palette sémantique v2", InReview, High, Nora, u"tokens", Task, Sprint, 0.35, {}, {}},
    {u"DS-33", u"Documenter les patterns de formulaire", Todo, Low, Me, u"docs", Task, Sprint, 3.5, {}, {}},
    {u"DS-34", u"Bouton : l'état de chargement décale la mise en page", Todo, Medium, nullopt, u"components", Bug, Sprint, 1.8, {}, {}},
    {u"DS-35", u"Icônes : passer à un sprite SVG", Backlog, nullopt, nullopt, u"icons", Task, Later, 18, {}, {}},
    {u"DS-36", u"Migration vers Storybook 9", Done, Medium, Yann, u"tooling", Task, Sprint, 6, {}, {}},
    {u"DS-37", u"DatePicker localisé (fr, de, es)", Backlog, Medium, nullopt, u"components i18n", Story, Later, 11, {}, {}},
    {u"MOB-113", u"Timeline : le défilement saute sur iPad", Done, High, Me, u"ios", Bug, Sprint, 3.2, {}, {}},
    {u"WEB-214", u"Page 404 personnalisée avec recherche", Done, Low, Me, u"design", Task, Sprint, 4.6, {}, {}},
    {u"WEB-215", u"Limiter les tentatives de connexion par IP", Done, High, Me, u"auth security", Story, Sprint, 8.3, {}, {}},
    {u"DS-38", u"Tokens d'espacement et de rayon", Done, Medium, Me, u"tokens", Task, Sprint, 9.4, {}, {}},
    {u"MOB-114", u"Analytics : évènements d'onboarding", Cancelled, Low, Me, u"analytics", Task, Later, 5.5, {}, {}},
    {u"SUP-41", u"Impossible de télécharger la facture de septembre", InProgress, High, Me, u"facturation", Bug, Later, 0.15, {}, {}},
    {u"SUP-42", u"Demande d'export RGPD des données du compte", InReview, Medium, Elsa, u"rgpd", Task, Later, 1.4, {}, {}},
    {u"SUP-43", u"Notifications e-mail reçues en double", Done, Medium, Me, u"notifications", Bug, Later, 2.8, {}, {}},
    {u"SUP-44", u"Changer le propriétaire de l'espace de travail", Todo, Low, nullopt, u"compte", Story, Later, 0.6, {}, {}},
});
// clang-format on

consteval bool hasUniqueKeys()
{
    return std::ranges::all_of(rowTable, [](const Row &row) {
        return std::ranges::count(rowTable, row.key, &Row::key) == 1;
    });
}
static_assert(hasUniqueKeys(), "two issues of the demo share a key");

} // namespace

std::span<const Row> rows()
{
    return rowTable;
}

} // namespace DemoSeed
