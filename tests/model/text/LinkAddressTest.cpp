#include "model/text/LinkAddress.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

QString named(const QString &text, const QString &address)
{
    return otherHostNamed(text, QUrl(address)).value_or(u"(aucun)"_s);
}

const QString none = u"(aucun)"_s;
const QString evil = u"https://evil.example/banque.fr"_s;

} // namespace

TEST(OpenableAddress, WebAndMailAddressesMayBeOpened)
{
    for (const QString &address :
         {u"https://exemple.fr"_s, u"HTTP://exemple.fr:8080/a?b#c"_s, u"mailto:lea@exemple.fr"_s,
          u" https://exemple.fr/é à "_s, u"http://[::1]/"_s, u"https://exemple.fr/a\u202Eb"_s})
        EXPECT_TRUE(openableAddress(address)) << qPrintable(address);
}

TEST(OpenableAddress, OtherSchemesMayNot)
{
    for (const QString &address :
         {u"javascript:alert(1)"_s, u"JaVaScRiPt:alert(1)"_s, u"file:///etc/passwd"_s,
          u"data:text/html,x"_s, u"vbscript:x"_s, u"ftp://exemple.fr"_s, u"ssh://exemple.fr"_s,
          u"smb://serveur/partage"_s, u"tel:112"_s, u"ms-settings:"_s,
          u"view-source:https://exemple.fr"_s, u"httpsx://exemple.fr"_s,
          u"blob:https://exemple.fr/a"_s})
        EXPECT_FALSE(openableAddress(address)) << qPrintable(address);
}

TEST(OpenableAddress, AddressesWithoutAHostMayNot)
{
    for (const QString &address :
         {u""_s, u"   "_s, u"exemple.fr"_s, u"www.exemple.fr"_s, u"//exemple.fr"_s,
          u"/etc/passwd"_s, u"../a"_s, u"https:"_s, u"https://"_s, u"https:///a"_s,
          u"https:exemple.fr"_s, u"https:\\\\exemple.fr"_s, u"mailto:"_s, u"C:\\a.exe"_s,
          u"\\\\serveur\\partage"_s})
        EXPECT_FALSE(openableAddress(address)) << qPrintable(address);
}

TEST(OpenableAddress, ControlCharactersMayNot)
{
    for (const QString &address :
         {u"java\nscript:alert(1)"_s, u"https://exemple.fr/\r\nA: b"_s,
          u"\u0001https://exemple.fr"_s, u"https://exemple.fr\u0000.evil.example"_s,
          u"https://exemple.fr\t.evil.example"_s})
        EXPECT_FALSE(openableAddress(address));
}

TEST(OtherHostNamed, TheSameHostIsNoOther)
{
    for (const QString &text :
         {u"exemple.fr"_s, u"EXEMPLE.fr"_s, u"www.exemple.fr"_s, u"https://exemple.fr/autre"_s,
          u"exemple.fr."_s, u"(voir exemple.fr)"_s, u"http://exemple.fr:80/a"_s,
          u"lea@exemple.fr"_s})
        EXPECT_EQ(named(text, u"https://exemple.fr/a"_s), none) << qPrintable(text);
    EXPECT_EQ(named(u"exemple.fr"_s, u"https://www.exemple.fr/"_s), none);
}

TEST(OtherHostNamed, AnotherHostIsNamed)
{
    for (const QString &text :
         {u"banque.fr"_s, u"https://banque.fr"_s, u"http://banque.fr/compte?a=b"_s,
          u"www.banque.fr"_s, u"Va sur banque.fr !"_s, u"(banque.fr)"_s,
          u"«\u00A0banque.fr\u00A0»"_s, u"BANQUE.FR"_s, u"banque.fr:443"_s, u"lea@banque.fr"_s,
          u"banque.fr,"_s, u"https://moi@banque.fr/"_s, u"banque.fr\\compte"_s,
          u"evil.example ou banque.fr"_s})
        EXPECT_TRUE(named(text, evil).endsWith(u"banque.fr"_s))
            << qPrintable(text) << qPrintable(named(text, evil));
}

TEST(OtherHostNamed, ASubdomainIsAnotherHost)
{
    EXPECT_EQ(named(u"banque.fr"_s, u"https://banque.fr.evil.example/"_s), u"banque.fr"_s);
    EXPECT_EQ(named(u"pages.exemple"_s, u"https://moi.pages.exemple/"_s), u"pages.exemple"_s);
}

TEST(OtherHostNamed, HiddenCharactersDoNotHideIt)
{
    EXPECT_EQ(named(u"ban\u200Bque\u00AD.fr"_s, evil), u"banque.fr"_s);
    EXPECT_EQ(named(u"banque\u2060.fr"_s, evil), u"banque.fr"_s);
    EXPECT_EQ(named(u"ｂａｎｑｕｅ．ｆｒ"_s, evil), u"banque.fr"_s);
    EXPECT_EQ(named(u"banque。fr"_s, evil), u"banque.fr"_s);
}

TEST(OtherHostNamed, LettersThatLookAlikeAreOthers)
{
    // The first letter of the text is Cyrillic.
    EXPECT_EQ(named(u"\u0430pple.com"_s, u"https://apple.com/"_s), u"\u0430pple.com"_s);
    EXPECT_EQ(named(u"apple.com"_s, u"https://\u0430pple.com/"_s), u"apple.com"_s);
}

TEST(OtherHostNamed, InternationalNamesEqualTheirEncoding)
{
    EXPECT_EQ(named(u"société.fr"_s, u"https://xn--socit-esab.fr/"_s), none);
    EXPECT_EQ(named(u"xn--socit-esab.fr"_s, u"https://société.fr/"_s), none);
}

TEST(OtherHostNamed, OrdinaryWordsAreNoHosts)
{
    for (const QString &text : {u""_s,
                                u"ici"_s,
                                u"documentation Stripe Billing"_s,
                                u"version 4.2"_s,
                                u"1.2.3"_s,
                                u"24.12.2026"_s,
                                u"fin."_s,
                                u"etc..."_s,
                                u"facture.pdf"_s,
                                u"README.md"_s,
                                u"main.cpp"_s,
                                u"c.-à-d. demain"_s,
                                u"a.b"_s,
                                u"..."_s,
                                u"."_s,
                                u"-.-"_s,
                                u"12 h. 30"_s,
                                u"fichier archive.tar.gz"_s,
                                u"@lea"_s,
                                u"a@b"_s})
        EXPECT_EQ(named(text, evil), none) << qPrintable(text);
}

TEST(OtherHostNamed, NamesOfFilesInAnAddressAreHosts)
{
    EXPECT_EQ(named(u"https://archive.zip/"_s, evil), u"archive.zip"_s);
    EXPECT_EQ(named(u"readme.md/a"_s, evil), u"readme.md"_s);
}

TEST(OtherHostNamed, NumericAddressesAreHosts)
{
    EXPECT_EQ(named(u"192.168.1.1"_s, evil), u"192.168.1.1"_s);
    EXPECT_EQ(named(u"192.168.1.1"_s, u"http://192.168.1.1/a"_s), none);
    EXPECT_EQ(named(u"999.168.1.1"_s, evil), none);
}

TEST(OtherHostNamed, MailAddressesAreComparedByTheirHost)
{
    EXPECT_EQ(named(u"lea@exemple.fr"_s, u"mailto:lea@exemple.fr"_s), none);
    EXPECT_EQ(named(u"lea@exemple.fr"_s, u"mailto:lea@evil.example?subject=a"_s), u"exemple.fr"_s);
}

TEST(OtherHostNamed, LongTextsAreRead)
{
    EXPECT_EQ(named(QString(1'000'000, u'a') + u" banque.fr"_s, evil), u"banque.fr"_s);
    EXPECT_EQ(named(u"a."_s.repeated(500'000), evil), none);
    EXPECT_EQ(named(QString(1'000'000, u'.'), evil), none);
}

TEST(ShownAddress, ShowsTheHostAsItIsLookedUp)
{
    EXPECT_EQ(shownAddress(u"https://\u0430pple.com/\u00E9t%C3%A9"_s),
              u"https://xn--pple-43d.com/été"_s);
}

TEST(ShownAddress, ShowsHiddenCharacters)
{
    EXPECT_FALSE(shownAddress(u"https://exemple.fr/a\u202Egpj.exe"_s).contains(u'\u202E'));
    EXPECT_FALSE(shownAddress(u"https://exemple.fr/a%E2%80%AEgpj.exe"_s).contains(u'\u202E'));
    EXPECT_EQ(shownAddress(u"javascript:a\u202Eb"_s), u"javascript:a[U+202E]b"_s);
}

TEST(ShownAddress, KeepsWhatIsAfterTheHost)
{
    EXPECT_EQ(shownAddress(u"https://exemple.fr:8443/a/b?c=d&e=f#g"_s),
              u"https://exemple.fr:8443/a/b?c=d&e=f#g"_s);
    EXPECT_EQ(shownAddress(u"mailto:lea@exemple.fr?subject=a"_s),
              u"mailto:lea@exemple.fr?subject=a"_s);
}

TEST(ShownAddress, IsCutWhenItIsLong)
{
    const QString shown = shownAddress(u"https://exemple.fr/"_s + QString(5000, u'a'));
    EXPECT_EQ(shown.size(), 401);
    EXPECT_TRUE(shown.startsWith("https://exemple.fr/aaa"_L1));
    EXPECT_TRUE(shown.endsWith(u'…'));
}

TEST(LinkToolTip, IsTheAddressOfAnHonestLink)
{
    EXPECT_EQ(linkToolTip(u"la documentation"_s, u"https://exemple.fr/a"_s),
              u"https://exemple.fr/a"_s);
    EXPECT_EQ(linkToolTip(u"exemple.fr"_s, u"https://exemple.fr/a"_s), u"https://exemple.fr/a"_s);
}

TEST(LinkToolTip, WarnsOfAnotherHost)
{
    EXPECT_EQ(linkToolTip(u"https://banque.fr"_s, evil),
              u"Attention : le texte nomme «\u00A0banque.fr\u00A0», mais le lien mène à "
              u"«\u00A0evil.example\u00A0».\n"
              "https://evil.example/banque.fr"_s);
}

TEST(LinkToolTip, WarnsOfAUserNameThatCanPassForAHost)
{
    EXPECT_EQ(
        linkToolTip(u"ma banque"_s, u"https://banque.fr@evil.example/"_s),
        u"Attention : le lien mène à «\u00A0evil.example\u00A0».\nhttps://banque.fr@evil.example/"_s);
}

TEST(LinkToolTip, SaysThatAnAddressIsNotOpened)
{
    EXPECT_EQ(linkToolTip(u"ici"_s, u"javascript:alert(1)"_s),
              u"Velmora n'ouvre pas cette adresse : javascript:alert(1)"_s);
}
