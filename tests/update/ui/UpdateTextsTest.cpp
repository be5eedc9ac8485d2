#include "update/ui/UpdateTexts.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

using State = UpdateState;

ReleaseInfo release(const QString &notes = {})
{
    ReleaseInfo info;
    info.version = u"1.4.0"_s;
    info.build = u"140"_s;
    if (!notes.isEmpty())
        info.notes = notes;
    return info;
}

UpdateLabel label(const QString &title, const QString &symbol)
{
    return {.title = title, .subtitle = {}, .symbol = symbol};
}

std::string textOf(const ADFNode &node)
{
    std::string text = node.text.value_or(QString()).toStdString();
    for (const ADFNode &child : node.content.value_or(QList<ADFNode>()))
        text += textOf(child);
    return text;
}

TEST(UpdateTexts, TheStatusOfEachStateHasItsTextAndSymbol)
{
    EXPECT_EQ(UpdateTexts::status(State()), label(u"Pas encore vérifié"_s, u"clock"_s));
    EXPECT_EQ(UpdateTexts::status(State::Checking{}), label(u"Recherche…"_s, u"magnifyingglass"_s));
    EXPECT_EQ(UpdateTexts::status(State::UpToDate{}),
              label(u"Velmora est à jour"_s, u"checkmark.seal.fill"_s));
    EXPECT_EQ(UpdateTexts::status(State::Available{release()}),
              label(u"Version 1.4.0 disponible"_s, u"arrow.down.circle"_s));
    EXPECT_EQ(UpdateTexts::status(State::Downloading{release()}),
              label(u"Téléchargement de 1.4.0"_s, u"arrow.down.circle"_s));
    EXPECT_EQ(UpdateTexts::status(State::Ready{release()}),
              label(u"Version 1.4.0 prête"_s, u"sparkles"_s));
    EXPECT_EQ(UpdateTexts::status(State::Installing{}), label(u"Installation…"_s, u"gearshape"_s));
    EXPECT_EQ(UpdateTexts::status(State::Failed{u"Panne."_s}),
              label(u"Panne."_s, u"exclamationmark.triangle"_s));
}

TEST(UpdateTexts, TheBadgeStandsInThreeStatesOnly)
{
    EXPECT_EQ(UpdateTexts::badge(State::Available{release()}),
              (UpdateLabel{.title = u"Velmora 1.4.0 disponible"_s,
                           .subtitle = u"Télécharger"_s,
                           .symbol = u"arrow.down.circle.fill"_s}));
    EXPECT_EQ(UpdateTexts::badge(State::Downloading{release()}),
              (UpdateLabel{.title = u"Téléchargement de 1.4.0"_s,
                           .subtitle = u"Vérification de la signature"_s,
                           .symbol = {}}));
    EXPECT_EQ(UpdateTexts::badge(State::Ready{release()}),
              (UpdateLabel{.title = u"Velmora 1.4.0 prête"_s,
                           .subtitle = u"Redémarrer pour installer"_s,
                           .symbol = u"sparkles"_s}));
    for (const State &other : {State(), State(State::Checking{}), State(State::UpToDate{}),
                               State(State::Installing{}), State(State::Failed{u"Panne."_s})})
        EXPECT_FALSE(UpdateTexts::badge(other));
}

TEST(UpdateTexts, WithoutAnyFeedTheFootnoteSaysThatNoChannelIsConfigured)
{
    const auto none = u"Aucun canal configuré : colle l'adresse du fichier latest.json publié par "
                      "scripts/release.sh."_s;
    EXPECT_EQ(UpdateTexts::footnote({}, {}), none);
    EXPECT_EQ(UpdateTexts::footnote({}, u" \n\t"_s), none);
}

TEST(UpdateTexts, WithOneFeedTheFootnoteTellsOfTheVerification)
{
    const auto verified = u"Chaque mise à jour est vérifiée (empreinte SHA-256 et signature du "
                          "même développeur) avant installation."_s;
    EXPECT_EQ(UpdateTexts::footnote(u"https://updates.example/latest.json"_s, {}), verified);
    EXPECT_EQ(UpdateTexts::footnote({}, u"h"_s), verified);
}

TEST(UpdateTexts, ThePromptOfTheFeedIsTheBuiltInOne)
{
    EXPECT_EQ(UpdateTexts::feedPrompt(u"https://updates.example/latest.json"_s),
              u"https://updates.example/latest.json"_s);
    EXPECT_EQ(UpdateTexts::feedPrompt({}), u"https://…/velmora/latest.json"_s);
}

TEST(UpdateTexts, TheLastCheckIsWrittenInTheTimeZoneOfTheUser)
{
    const QDateTime time({2026, 10, 29}, {23, 30}, QTimeZone::utc());
    const UserCalendar paris{QLocale(u"fr_FR"_s), QTimeZone("Europe/Paris")};
    EXPECT_EQ(UpdateTexts::lastCheck(time, paris).toStdString(), "30 oct. 2026 à 00:30");
}

TEST(UpdateTexts, NotesOfBlanksAreNone)
{
    EXPECT_FALSE(UpdateTexts::notes({}));
    EXPECT_FALSE(UpdateTexts::notes(u" \r\n\t\n"_s));
}

TEST(UpdateTexts, NotesBecomeADocumentWhateverTheirLineBreaks)
{
    const auto document = UpdateTexts::notes(u"# Titre\r\n\r\n- un\r\n- deux"_s);
    ASSERT_TRUE(document);
    EXPECT_EQ(document->type, u"doc"_s);
    EXPECT_EQ(document->version, 1);
    ASSERT_EQ(document->content->size(), 2);
    EXPECT_EQ(document->content->at(0).type, u"heading"_s);
    EXPECT_EQ(document->content->at(1).type, u"bulletList"_s);
    EXPECT_EQ(textOf(*document), "Titreundeux");
}

TEST(UpdateTexts, TheTitleOfTheSheetNamesTheVersion)
{
    EXPECT_EQ(UpdateTexts::whatsNewTitle(u"1.4.0"_s), u"Nouveautés de Velmora 1.4.0"_s);
}

} // namespace
