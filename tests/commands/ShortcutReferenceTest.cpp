#include "commands/ShortcutReference.h"

#include "platform/Wording.h"
#include "support/TestFiles.h"

#include <QFile>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// The page of the user's guide that lists all keys.
QString pageOfKeys()
{
    QString page =
        u"# Les touches de Velmora\n\nLa même liste s'affiche dans le programme avec « ? », avec "
        u"les "
        "signes de ton clavier\u00A0: en AZERTY, Ctrl+Maj+. s'y\nécrit Ctrl+Maj+:, parce que le "
        "point demande déjà Maj.\n"_s;
    for (const auto &group : shortcutReference()) {
        page += u"\n## %1\n\n| touches | effet |\n|---|---|\n"_s.arg(group.title);
        for (const auto &row : group.rows)
            page += u"| %1 | %2 |\n"_s.arg(Wording::localized(row.keys).simplified(), row.meaning);
    }
    return page;
}

} // namespace

TEST(ShortcutReference, TheGuideHasItsKeys)
{
    QFile page(projectFile(u"docs/guide/raccourcis.md"_s));
    ASSERT_TRUE(page.open(QFile::ReadOnly));
    // After a change, the page is replaced by the expected text.
    EXPECT_EQ(QString::fromUtf8(page.readAll()).toStdString(), pageOfKeys().toStdString());
}
