#include "model/TextFolding.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

TEST(Folded, DropsCaseAndDiacriticsTogether)
{
    EXPECT_EQ(folded(u"Élevée À ÇÀ Ñandú Über"), u"elevee a ca nandu uber"_s);
    EXPECT_EQ(folded(u"TERMINÉ"), folded(u"termine"));
}

TEST(Folded, TreatsComposedAndDecomposedSpellingsAlike)
{
    EXPECT_EQ(folded(u"E\u0301te\u0301"), u"ete"_s);
    EXPECT_EQ(folded(u"\u1EA4"), u"a"_s);
}

TEST(Folded, IsIndependentOfTurkishRules)
{
    EXPECT_EQ(folded(u"TITLE"), u"title"_s);
    EXPECT_EQ(folded(u"\u0130"), u"i"_s);
}

TEST(Folded, KeepsTypographicSigns)
{
    EXPECT_EQ(folded(u"L’Été — « fin »…"), u"l’ete — « fin »…"_s);
}

TEST(Folded, KeepsLettersThatAreNoAccentedOnes)
{
    EXPECT_EQ(folded(u"ŒUVRE Ærø"), u"œuvre ærø"_s);
}

TEST(Folded, ExpandsSharpSAndLigatures)
{
    EXPECT_EQ(folded(u"Straße"), u"strasse"_s);
    EXPECT_EQ(folded(u"GROẞ"), u"gross"_s);
    EXPECT_EQ(folded(u"\uFB01n"), u"fin"_s);
}

TEST(Folded, FoldsGreekAndCyrillic)
{
    EXPECT_EQ(folded(u"Άλφα"), u"αλφα"_s);
    EXPECT_EQ(folded(u"Ёж"), u"еж"_s);
}

TEST(Folded, LeavesScriptsWithoutCaseAsTheyAre)
{
    EXPECT_EQ(folded(u"が 개발 工程"), u"が 개발 工程"_s);
}

TEST(Folded, KeepsCharactersBeyondTheBasicPlane)
{
    EXPECT_EQ(folded(u"🦊 Renard"), u"🦊 renard"_s);
}

TEST(Folded, OfAnEmptyTextIsEmpty)
{
    EXPECT_TRUE(folded(u"").isEmpty());
    EXPECT_TRUE(folded({}).isEmpty());
}

TEST(FoldedForSearch, SpellsLigaturesOut)
{
    EXPECT_EQ(foldedForSearch(u"ŒUVRE Ærø ǼǢ"), u"oeuvre aerø aeae"_s);
    EXPECT_EQ(foldedForSearch(u"Straße ﬁn"), u"strasse fin"_s);
    EXPECT_TRUE(foldedForSearch(u"").isEmpty());
}

TEST(LocalizedContains, IgnoresCaseAndAccentsOnBothSides)
{
    EXPECT_TRUE(localizedContains(u"Corriger l'ÉLÉVATION", u"elev"));
    EXPECT_TRUE(localizedContains(u"elevation", u"ÉLÉ"));
    EXPECT_FALSE(localizedContains(u"elevation", u"elu"));
}

TEST(LocalizedContains, FindsALigatureByItsTwoLettersAndTheReverse)
{
    EXPECT_TRUE(localizedContains(u"Chef-d'ŒUVRE", u"oeuvre"));
    EXPECT_TRUE(localizedContains(u"chef-d'oeuvre", u"Œuv"));
    EXPECT_TRUE(localizedContains(u"curriculum vitæ", u"VITAE"));
    EXPECT_TRUE(localizedContains(u"et caetera", u"Cæt"));
    EXPECT_TRUE(localizedContains(u"GROẞ", u"gross"));
    EXPECT_FALSE(localizedContains(u"œuf", u"euf d"));
}

TEST(LocalizedContains, FindsAnEmptyTextNowhere)
{
    EXPECT_FALSE(localizedContains(u"abc", u""));
    EXPECT_FALSE(localizedContains(u"", u""));
}

TEST(Slugified, OfPunctuationAloneIsEmpty)
{
    EXPECT_EQ(slugified(u"… !? — ()"), QString());
    EXPECT_EQ(slugified(u""), QString());
}

TEST(Slugified, HasNoAccentsAndOneDashForEachRunOfSigns)
{
    EXPECT_EQ(slugified(u"  Évènement :  créé / modifié !! "), u"evenement-cree-modifie"_s);
    EXPECT_EQ(slugified(u"v2.0 -- API"), u"v2-0-api"_s);
}

TEST(Slugified, PartsWordsAtLettersOutsideAscii)
{
    EXPECT_EQ(slugified(u"cœur 🦊 Ωmega"), u"c-ur-mega"_s);
}

TEST(Slugified, OfExactly48CharactersStaysWhole)
{
    const QString text = QString(48, u'a');
    EXPECT_EQ(slugified(text), text);
}

TEST(Slugified, Of49CharactersIsCut)
{
    EXPECT_EQ(slugified(QString(49, u'a')), QString(48, u'a'));
}

TEST(Slugified, CutAtADashLosesTheDash)
{
    EXPECT_EQ(slugified(QString(47, u'a') + u" bcd"_s), QString(47, u'a'));
}

TEST(StableHash, OfTheEmptyTextIsItsStart)
{
    EXPECT_EQ(stableHash(u""), 5381);
}

TEST(StableHash, MultipliesBy33AndAddsEachScalar)
{
    EXPECT_EQ(stableHash(u"a"), 5381 * 33 + 97);
    EXPECT_EQ(stableHash(u"ab"), (5381 * 33 + 97) * 33 + 98);
    // One Unicode scalar value, encoded as two code units.
    EXPECT_EQ(stableHash(u"🦊"), 5381 * 33 + 0x1F98A);
}

TEST(StableHash, WrapsAt64BitsBeforeTheRemainder)
{
    quint64 hash = 5381;
    for (int i = 0; i < 40; ++i)
        hash = hash * 33 + u'z';
    EXPECT_EQ(stableHash(QString(40, u'z')), int(hash % 2147483647));
    // Computed independently of this program, with arbitrary-precision arithmetic.
    EXPECT_EQ(stableHash(u"The quick brown fox jumps over the lazy dog"), 577812157);
}

} // namespace
