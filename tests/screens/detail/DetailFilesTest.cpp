#include "app/WindowFixture.h"

#include <algorithm>

using namespace Qt::StringLiterals;

/// The files of an issue beside the list of the main window.
class DetailFiles : public WindowFixture
{
protected:
    /// Opens an issue with this number of files.
    void openIssueWith(int count)
    {
        Issue issue = issueWithKey(u"MOB-1"_s);
        for (int i = 0; i < count; ++i) {
            Attachment file;
            file.id = QString::number(i);
            file.filename = u"fichier-%1.log"_s.arg(i);
            issue.attachments += file;
        }
        serveIssues({issue});
        service->issueCalls.answerWith(issue);
        openOnDemo();
        desktop->setPrefersReducedMotion(true);
        settle();
        store().setFocusedKey(u"MOB-1"_s);
        press(Qt::Key_Return);
        await(QAccessible::ListItem, u"fichier-0.log"_s);
        settle();
    }
    Spoken focusedTile()
    {
        auto tiles = spokenIn(window(), QAccessible::ListItem, u"fichier-"_s);
        tiles.removeIf([](const Spoken &tile) { return !tile.state.focused; });
        return tiles.value(0);
    }
    bool isFocused(QAccessible::Role role, const QString &name)
    {
        return std::ranges::any_of(spokenIn(window(), role, name), [&](const Spoken &thing) {
            return thing.name == name && thing.state.focused;
        });
    }
    int topOf(QAccessible::Role role, const QString &name) { return find(role, name).box.top(); }
};

TEST_F(DetailFiles, TheTileThatTheKeysReachIsInSight)
{
    openIssueWith(24);
    for (int i = 0; i < 30 && focusedTile().name.isEmpty(); ++i)
        press(Qt::Key_Tab);
    press(Qt::Key_End);
    settle();
    EXPECT_EQ(focusedTile().name, u"fichier-23.log"_s);
    EXPECT_LE(focusedTile().box.bottom(), topOf(QAccessible::Grouping, u"Nouveau commentaire"_s));
    press(Qt::Key_Home);
    settle();
    EXPECT_EQ(focusedTile().name, u"fichier-0.log"_s);
    EXPECT_GE(focusedTile().box.top(), 0);
}

TEST_F(DetailFiles, TheDownKeyOfTheButtonThatAttachesOpensItsMenu)
{
    openIssueWith(1);
    for (int i = 0; i < 30 && !isFocused(QAccessible::Button, u"Joindre"_s); ++i)
        press(Qt::Key_Tab);
    press(Qt::Key_Down);
    await(QAccessible::MenuItem, u"Coller depuis le presse-papiers"_s);
}
