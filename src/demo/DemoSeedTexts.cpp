#include "demo/DemoSeedTexts.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace DemoSeed {

namespace {

struct Description
{
    std::u16string_view key;
    std::u16string_view text;
};

// Together they contain every kind of block and of inline mark that the Markdown parser supports.
constexpr auto descriptions = std::to_array<Description>({
    {u"MOB-101", uR"(## Contexte
Depuis la version 4.2, les comptes créés avec **Connexion avec Apple** sont déconnectés *exactement* 24 h après leur première ouverture de session.

## Étapes pour reproduire
1. Se connecter avec un identifiant Apple
2. Avancer l'horloge de l'appareil de 24 h
3. Rouvrir l'app : l'écran de connexion s'affiche

## Piste
On renvoie `identityToken` au lieu d'échanger le code d'autorisation contre un jeton de rafraîchissement :

```swift
let session = try await api.refresh(using: credential.identityToken)
store.save(session, expiresIn: 86_400)
```

- [x] Reproduire sur un compte de test
- [ ] Échanger `authorizationCode` côté serveur
- [ ] Ajouter un test de non-régression)"},
    {u"WEB-201",
     uR"(La page de facturation est la **deuxième** page la plus consultée par les administrateurs, et la première source de demandes au support.

### Objectifs
- Regrouper les factures, les moyens de paiement et l'abonnement
- Afficher la prochaine échéance sans défilement
- Télécharger une facture en un clic

> Maquettes validées par l'équipe design le 14 octobre.

Pour les statuts de paiement, s'appuyer sur la [documentation Stripe Billing](https://docs.stripe.com/billing).)"},
    {u"WEB-205",
     uR"(Le tableau de bord met **plus de 3 s** à s'afficher pour les espaces de plus de 200 projets.

## Mesures
- `GET /api/projects/summary` : **2,1 s** au 95e centile
- `GET /api/me` : 140 ms
- Rendu côté navigateur : **380 ms**

## Plan
1. Supprimer les requêtes N+1 du résumé
2. Mettre en cache les compteurs par projet
3. Charger les graphiques après le premier affichage)"},
    {u"WEB-202",
     uR"(En tant qu'**administrateur**, je veux exporter mes factures en CSV en conservant les filtres actifs (période, statut, client).

## Critères d'acceptation
- [x] Bouton « Exporter » dans la barre d'outils
- [x] Respect des filtres actifs
- [ ] Encodage UTF-8 avec BOM pour Excel
- [ ] Limite de 50 000 lignes, au-delà export asynchrone par e-mail)"},
    {u"DS-32",
     uR"(Passage d'une palette nominale (`blue-500`) à une palette **sémantique** (`accent`, `danger`, `surface-raised`…).

- Les anciens tokens restent disponibles en alias pendant 2 versions
- Le thème sombre est généré automatiquement)"},
});

using enum Person;
constexpr bool everyone = false;
constexpr bool agents = true;

constexpr auto comments = std::to_array<CommentText>({
    {u"MOB-101",
     Basile,
     20,
     everyone,
     {},
     u"Je confirme, reproduit sur iOS 26.1 avec un compte de test."},
    {u"MOB-101",
     Me,
     3,
     everyone,
     {},
     u"Trouvé : on envoie l'`identityToken`. Correctif en cours, PR dans la journée."},
    {u"WEB-202",
     Elsa,
     30,
     everyone,
     {},
     u"Pense au **séparateur point-virgule** pour les clients en Excel FR."},
    {u"WEB-202",
     Me,
     6,
     everyone,
     {},
     u"C'est noté, je l'ajoute en option dans la modale d'export."},
    {u"WEB-205",
     Yann,
     8,
     everyone,
     {},
     u"Le N+1 vient du sérialiseur `ProjectSummary`. Un `prefetch_related` règle 80 % du "
     u"problème."},
    {u"WEB-205", Basile, 5, everyone, u"Developers",
     u"Attention, le cache Redis de prod est partagé avec la préprod : ne pas le vider pendant les "
     u"tests de charge."},
    {u"SUP-41",
     Customer,
     30,
     everyone,
     {},
     u"Bonjour, depuis ce matin le bouton **Télécharger** de la facture de septembre ne fait rien. "
     u"Pouvez-vous m'aider ?"},
    {u"SUP-41",
     Me,
     26,
     agents,
     {},
     u"Reproduit : le PDF de septembre n'a pas été généré à cause d'un timeout du worker. Lié à "
     u"WEB-201."},
    {u"SUP-41",
     Me,
     25,
     everyone,
     {},
     u"Bonjour Odile, merci pour votre signalement. Nous avons identifié le problème et régénérons "
     u"votre facture."},
    {u"SUP-41",
     Elsa,
     4,
     agents,
     {},
     u"Worker relancé, le PDF est en cours de génération. Ne pas encore prévenir la cliente."},
    {u"SUP-42",
     Customer,
     50,
     everyone,
     {},
     u"Je souhaite obtenir une copie de toutes les données de mon compte, conformément au RGPD."},
    {u"SUP-42",
     Elsa,
     40,
     agents,
     {},
     u"Délai légal : 1 mois. Export lancé via le back-office, vérifier qu'il ne contient pas les "
     u"notes internes."},
    {u"SUP-42",
     Elsa,
     34,
     everyone,
     {},
     u"Bonjour, votre demande est bien prise en compte. Vous recevrez l'archive par e-mail sous 72 "
     u"h."},
});

QString madeUpDescription(std::u16string_view title)
{
    return u"## Contexte\n"_s + QStringView(title).toString() +
           u".\n\n## Critères d'acceptation\n"
           "- [ ] Comportement validé sur tous les environnements\n- [ ] Tests ajoutés"_s;
}

} // namespace

std::span<const CommentText> commentTexts()
{
    return comments;
}

QString descriptionText(std::u16string_view key, std::u16string_view title)
{
    const auto own = std::ranges::find(descriptions, key, &Description::key);
    return own != descriptions.end() ? QStringView(own->text).toString() : madeUpDescription(title);
}

} // namespace DemoSeed
