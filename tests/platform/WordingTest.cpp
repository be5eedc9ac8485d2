#include "platform/Wording.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

struct Wanted
{
    QString mac;
    QString linux;
};

class WordingTest : public testing::TestWithParam<Wanted>
{
};

TEST_P(WordingTest, readsAsTheUserOfALinuxDesktopExpects)
{
    EXPECT_EQ(Wording::localized(GetParam().mac).toStdString(), GetParam().linux.toStdString());
}

INSTANTIATE_TEST_SUITE_P(
    Shortcuts, WordingTest,
    testing::Values(Wanted{u"⌘K"_s, u"Ctrl+K"_s}, Wanted{u"⇧⌘."_s, u"Ctrl+Maj+."_s},
                    Wanted{u"⌘⇧."_s, u"Ctrl+Maj+."_s}, Wanted{u"⌘⇧,"_s, u"Ctrl+Maj+,"_s},
                    Wanted{u"⌘↩"_s, u"Ctrl+↩"_s}, Wanted{u"⌥⌘N"_s, u"Ctrl+Alt+N"_s},
                    Wanted{u"⌃⌘F"_s, u"Ctrl+F"_s}, Wanted{u"⌘"_s, u"Ctrl"_s},
                    Wanted{u"Maintiens ⌘ ou (⇧)"_s, u"Maintiens Ctrl ou (Maj)"_s},
                    Wanted{u"⌘↩ (commentaire)"_s, u"Ctrl+↩ (commentaire)"_s},
                    Wanted{u"Actualiser (⌘R)"_s, u"Actualiser (Ctrl+R)"_s},
                    Wanted{u"X  ·  ⌘clic  ·  ⇧clic"_s, u"X  ·  Ctrl+clic  ·  Maj+clic"_s}));

INSTANTIATE_TEST_SUITE_P(
    NamesOfTheSystem, WordingTest,
    testing::Values(Wanted{u"Afficher dans le Finder"_s,
                           u"Afficher dans le gestionnaire de fichiers"_s},
                    Wanted{u"Le token reste dans le trousseau macOS."_s,
                           u"Le token reste dans le trousseau du système."_s},
                    Wanted{u"macOS n'a pas donné accès au token enregistré (code -25293)."_s,
                           u"Le système n'a pas donné accès au token enregistré (code -25293)."_s},
                    Wanted{u"Clique sur « Réessayer » puis « Toujours autoriser », ou ressaisis."_s,
                           u"Clique sur « Réessayer » puis déverrouille ton trousseau, ou "
                           u"ressaisis."_s},
                    Wanted{u"La version 2.0 nécessite macOS 27."_s,
                           u"La version 2.0 nécessite le système en version 27."_s}));

INSTANTIATE_TEST_SUITE_P(TextsThatNameNoSystem, WordingTest,
                         testing::Values(Wanted{QString(), QString()}, Wanted{u"C"_s, u"C"_s},
                                         Wanted{u"J / K  ou  ↓ / ↑"_s, u"J / K  ou  ↓ / ↑"_s},
                                         Wanted{u"Échap"_s, u"Échap"_s}));

} // namespace
