#include "platform/bundles/UpdateError.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

TEST(UpdateErrorTest, SaysWhatFailed)
{
    const auto text = [](const UpdateError &error) { return error.message().toStdString(); };
    EXPECT_EQ(text(UpdateError::badResponse(503)), "Le serveur de mises à jour a répondu 503.");
    EXPECT_EQ(text(UpdateError::signature(u"signature illisible"_s)),
              "Signature refusée : signature illisible");
    EXPECT_EQ(text(UpdateError::notWritable(u"/opt"_s)),
              "Impossible d'écrire dans « /opt ». Installe la mise à jour à la main.");
    EXPECT_EQ(text(UpdateError::tool(u"ditto a échoué (1)."_s)), "ditto a échoué (1).");
    EXPECT_EQ(text(UpdateError::checksum()),
              "Le fichier téléchargé est corrompu (empreinte SHA-256 différente).");
    EXPECT_EQ(text(UpdateError::missingApp()), "L'archive ne contient pas Velmora.app.");
}

} // namespace
