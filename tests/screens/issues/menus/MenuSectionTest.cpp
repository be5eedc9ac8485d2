#include "screens/issues/menus/MenuSection.h"

#include "screens/Bench.h"
#include "screens/kit/images/ImageLoader.h"
#include "screens/kit/images/ScriptedFetcher.h"

#include <QTest>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const QString host =
    u"import Velmora.Issues\n"
    "Item { width: 600; height: 400; property menuSection section; "
    "property bool reached: false; property alias menu: m; property string chosen; "
    "MenuSectionMenu { id: m; section: parent.section; isReached: parent.reached; "
    "onChosen: choice => parent.chosen = choice } }"_s;

MenuChoice person(int number)
{
    const JiraUser user{.id = QString::number(number),
                        .name = u"Personne %1"_s.arg(number),
                        .email = std::nullopt,
                        .avatarURL = QUrl(u"https://site.example/%1.png"_s.arg(number))};
    MenuChoice choice;
    choice.id = user.id;
    choice.title = user.name;
    choice.icon = {OptionIcon::User{user}};
    return choice;
}

/// The addresses of all pictures below an item.
QStringList sourcesBelow(const QQuickItem *item)
{
    QStringList sources;
    if (item->inherits("QQuickImage"))
        sources += item->property("source").toUrl().toString();
    for (const auto *child : item->childItems())
        sources += sourcesBelow(child);
    sources.removeAll(QString());
    return sources;
}

} // namespace

class MenuSectionTest : public testing::Test
{
protected:
    MenuSectionTest()
    {
        ImageLoader::shared().setFetcher(&fetcher);
        holder = bench.show(host);
    }
    ~MenuSectionTest() override { ImageLoader::shared().setFetcher(nullptr); }
    void TearDown() override { EXPECT_EQ(bench.warnings(), ""); }

    void open(const QList<MenuChoice> &choices)
    {
        ASSERT_NE(holder, nullptr) << bench.warnings();
        MenuSection section;
        section.title = u"Assigner"_s;
        section.choices = choices;
        holder->setProperty("section", QVariant::fromValue(section));
        holder->setProperty("reached", true);
        QMetaObject::invokeMethod(menu(), "open");
        bench.window().grabWindow();
    }
    QObject *menu() { return holder->property("menu").value<QObject *>(); }
    QQuickItem *rows() { return menu()->property("contentItem").value<QQuickItem *>(); }

    ScriptedFetcher fetcher;
    Bench bench;
    QQuickItem *holder = nullptr;
};

TEST_F(MenuSectionTest, PeopleAreShownByInitialsAndNoPhotographIsFetched)
{
    QList<MenuChoice> people;
    for (int i = 0; i < 180; ++i)
        people += person(i);
    open(people);
    for (int i = 0; i < 10; ++i)
        QTest::keyClick(&bench.window(), Qt::Key_PageDown);
    bench.window().grabWindow();

    const auto sources = sourcesBelow(rows());
    EXPECT_GE(sources.size(), 100);
    for (const auto &source : sources)
        EXPECT_TRUE(source.startsWith(u"image://icon/avatar"_s)) << source.toStdString();
    EXPECT_EQ(fetcher.calls.count(), 0);
}

TEST_F(MenuSectionTest, TheEntryWithoutAPersonHasTheRingThatStandsForNobody)
{
    MenuChoice nobody;
    nobody.title = u"Non assigné"_s;
    nobody.icon = {OptionIcon::User{}};
    open({nobody, person(1)});
    EXPECT_TRUE(sourcesBelow(rows()).value(0).startsWith(u"image://icon/nobody"_s));
}
