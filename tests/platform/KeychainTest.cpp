#include "platform/Keychain.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

TEST(KeychainTest, aRefusalToSaveSpeaksInTheSystemsWords)
{
    EXPECT_EQ(Keychain::Failure(-25308, u"Le trousseau est verrouillé."_s).message(),
              u"Le trousseau est verrouillé."_s);
}

TEST(KeychainTest, aRefusalWithoutWordsTellsItsNumber)
{
    EXPECT_EQ(Keychain::Failure(-25308).message(), u"Erreur du trousseau (-25308)."_s);
    EXPECT_EQ(Keychain::Failure(-25308).status(), -25308);
}

TEST(KeychainTest, anItemIsLabelledByProgramAndAccount)
{
    EXPECT_EQ(Keychain::label(u"https://exemple.atlassian.net"_s),
              u"Velmora — https://exemple.atlassian.net"_s);
}

} // namespace
