#include "screens/options/OptionFilter.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

OptionItem item(const QString &title, const std::optional<QString> &subtitle = {})
{
    return {.id = title, .title = title, .subtitle = subtitle};
}

QStringList found(const QList<OptionItem> &items, const QString &query)
{
    QStringList titles;
    for (const auto &item : filteredOptions(items, query))
        titles += item.title;
    return titles;
}

} // namespace

TEST(FilteredOptions, AQueryOfBlanksOnlyFindsEverything)
{
    const QList<OptionItem> items{item(u"Un"_s), item(u"Deux"_s)};
    EXPECT_EQ(found(items, u" \t\n "_s), (QStringList{u"Un"_s, u"Deux"_s}));
}

TEST(FilteredOptions, CaseAndAccentsDoNotCount)
{
    const QList<OptionItem> items{item(u"Terminé"_s), item(u"En cours"_s), item(u"Determiner"_s)};
    EXPECT_EQ(found(items, u" TERMINE"_s), (QStringList{u"Terminé"_s, u"Determiner"_s}));
    EXPECT_EQ(found(items, u"déterminer"_s), QStringList{u"Determiner"_s});
}

TEST(FilteredOptions, TheOrderIsThatOfTheItemsWhereverTheMatchStands)
{
    const QList<OptionItem> items{item(u"zzz api"_s), item(u"api"_s), item(u"rapide"_s)};
    EXPECT_EQ(found(items, u"api"_s), (QStringList{u"zzz api"_s, u"api"_s, u"rapide"_s}));
}

TEST(FilteredOptions, ASubtitleIsSearchedToo)
{
    const QList<OptionItem> items{item(u"Noam Talvère"_s, u"Moi"_s), item(u"Basile"_s)};
    EXPECT_EQ(found(items, u"moi"_s), QStringList{u"Noam Talvère"_s});
}

TEST(ItemWithShortcut, IsTheFirstOne)
{
    auto first = item(u"a"_s);
    auto second = item(u"b"_s);
    first.shortcut = second.shortcut = u"2"_s;
    EXPECT_EQ(itemWithShortcut({item(u"c"_s), first, second}, 2), 1);
    EXPECT_EQ(itemWithShortcut({first}, 1), std::nullopt);
}
