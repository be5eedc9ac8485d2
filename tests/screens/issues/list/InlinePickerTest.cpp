#include "app/WindowFixture.h"

#include <QQuickItem>
#include <QTest>

using namespace Qt::StringLiterals;

class InlinePicker : public WindowFixture
{
protected:
    InlinePicker()
    {
        Preferences(preferencesPath).setText(u"ordering"_s, u"key"_s);
        serveIssues({issueWithKey(u"MOB-1"_s), issueWithKey(u"MOB-2"_s),
                     issueWithKey(u"MOB-3"_s, u"En cours"_s)});
        service->assignCalls.answerWith();
        service->performCalls.answerWith();
        service->updateCalls.answerWith();
        openOnDemo();
        service->transitionsCalls.answerWith(
            {{u"11"_s, u"Commencer"_s, IssueStatus::guessed(u"En cours"_s)}});
        desktop->setPrefersReducedMotion(true);
    }

    /// The cell with this name in the row of the issue.
    Spoken cell(const QString &key, const QString &name)
    {
        const auto row = await(QAccessible::ListItem, key + u',');
        for (const auto &button : spokenIn(window(), QAccessible::Button, name)) {
            if (row.box.contains(button.box.center()))
                return button;
        }
        ADD_FAILURE() << "no cell " << name.toStdString() << " in " << key.toStdString();
        return {};
    }
    void openAssignee(const QString &key)
    {
        click(cell(key, u"Assigné :"_s));
        await(QAccessible::EditableText, u"Assigner…"_s);
    }
    bool closes() { return isGone(QAccessible::Dialog, {}); }
    Issue issue(const QString &key) { return *store().issue(key).value_or(SharedIssue()); }
};

TEST_F(InlinePicker, EachCellOpensItsOwn)
{
    const QList<std::pair<QString, QString>> cells{{u"Statut :"_s, u"Statut…"_s},
                                                   {u"Priorité :"_s, u"Priorité…"_s},
                                                   {u"Assigné :"_s, u"Assigner…"_s}};
    for (const auto &[name, placeholder] : cells) {
        click(cell(u"MOB-1"_s, name));
        await(QAccessible::EditableText, placeholder);
        press(Qt::Key_Escape);
        EXPECT_TRUE(closes()) << name.toStdString();
    }
    EXPECT_EQ(store().inspectorKey(), std::nullopt) << "a click in a cell is none on the row";
    EXPECT_EQ(store().focusedKey(), std::nullopt);
}

TEST_F(InlinePicker, ItStandsAtItsCell)
{
    const auto anchor = cell(u"MOB-2"_s, u"Statut :"_s);
    click(anchor);
    const auto panel = await(QAccessible::Dialog, u"Statut…"_s);

    EXPECT_EQ(panel.box.left(), anchor.box.left());
    EXPECT_EQ(panel.box.top(), anchor.box.bottom() + 1 + 4);
    EXPECT_EQ(panel.box.width(), 260);
}

TEST_F(InlinePicker, ThatOfTheAssigneeReachesBeyondItsCell)
{
    const auto anchor = cell(u"MOB-2"_s, u"Assigné :"_s);
    click(anchor);
    const auto panel = await(QAccessible::Dialog, u"Assigner…"_s);

    EXPECT_EQ(panel.box.right(), anchor.box.right() + 30);
    EXPECT_EQ(panel.box.width(), 260);
}

TEST_F(InlinePicker, IsWorkedByKeysAlone)
{
    openAssignee(u"MOB-2"_s);
    type(u"noam"_s);
    await(QAccessible::ListItem, u"Noam Talvère"_s);
    press(Qt::Key_Return);

    EXPECT_EQ(issue(u"MOB-2"_s).assigneeOrEmpty().name, u"Noam Talvère"_s);
    EXPECT_TRUE(closes());
    press(Qt::Key_Down);
    EXPECT_EQ(store().focusedKey(), u"MOB-3"_s) << "the keyboard is the list's again";
}

TEST_F(InlinePicker, ADigitPicksAStatus)
{
    click(cell(u"MOB-1"_s, u"Statut :"_s));
    await(QAccessible::EditableText, u"Statut…"_s);
    press(Qt::Key_2);

    EXPECT_EQ(issue(u"MOB-1"_s).status.name(), u"En cours"_s);
    EXPECT_EQ(store().layout(), LayoutMode::List);
}

TEST_F(InlinePicker, OnACheckedRowItChangesAllCheckedIssues)
{
    store().setChecked({u"MOB-1"_s, u"MOB-3"_s});
    openAssignee(u"MOB-3"_s);
    click(await(QAccessible::ListItem, u"Noam Talvère"_s));

    EXPECT_TRUE(issue(u"MOB-1"_s).assignee);
    EXPECT_TRUE(issue(u"MOB-3"_s).assignee);
    EXPECT_FALSE(issue(u"MOB-2"_s).assignee);
}

TEST_F(InlinePicker, ASecondClickOnItsCellClosesIt)
{
    openAssignee(u"MOB-1"_s);
    click(cell(u"MOB-1"_s, u"Assigné :"_s));

    EXPECT_TRUE(closes());
}

TEST_F(InlinePicker, AClickOnAnotherCellOnlyClosesIt)
{
    click(cell(u"MOB-3"_s, u"Priorité :"_s));
    await(QAccessible::EditableText, u"Priorité…"_s);
    click(cell(u"MOB-3"_s, u"Assigné :"_s));

    EXPECT_TRUE(isGone(QAccessible::EditableText, u"Priorité…"_s));
    EXPECT_TRUE(spokenIn(window(), QAccessible::EditableText, u"Assigner…"_s).isEmpty());
    openAssignee(u"MOB-3"_s);
}

TEST_F(InlinePicker, AReloadLeavesItOpenAndItStillChangesItsIssue)
{
    openAssignee(u"MOB-2"_s);
    serveIssues({issueWithKey(u"MOB-0"_s), issueWithKey(u"MOB-2"_s)});
    reload();
    type(u"noam"_s);
    await(QAccessible::ListItem, u"Noam Talvère"_s);
    press(Qt::Key_Return);

    EXPECT_EQ(issue(u"MOB-2"_s).assigneeOrEmpty().name, u"Noam Talvère"_s);
    EXPECT_FALSE(issue(u"MOB-0"_s).assignee);
}

TEST_F(InlinePicker, AReloadThatTakesTheIssueAwayHarmsNothing)
{
    openAssignee(u"MOB-3"_s);
    serve({u"MOB-1"_s});
    reload();
    press(Qt::Key_Return);

    EXPECT_TRUE(closes());
    EXPECT_FALSE(issue(u"MOB-1"_s).assignee);
}

TEST_F(InlinePicker, ACardHasTwo)
{
    store().setLayout(LayoutMode::Board);
    click(cell(u"MOB-1"_s, u"Priorité :"_s));
    await(QAccessible::EditableText, u"Priorité…"_s);
    press(Qt::Key_Escape);
    ASSERT_TRUE(closes());

    openAssignee(u"MOB-1"_s);
    press(Qt::Key_Down);
    press(Qt::Key_Return);
    EXPECT_EQ(issue(u"MOB-1"_s).assigneeOrEmpty().name, u"Noam Talvère"_s);
    EXPECT_EQ(store().inspectorKey(), std::nullopt);
}

TEST_F(InlinePicker, KeysRightAfterEscapeAreTheListsAgain)
{
    store().setFocusedKey(u"MOB-1"_s);
    click(cell(u"MOB-1"_s, u"Statut :"_s));
    await(QAccessible::EditableText, u"Statut…"_s);
    press(Qt::Key_Down);
    press(Qt::Key_Escape);
    press(Qt::Key_Return);

    EXPECT_EQ(issue(u"MOB-1"_s).status.name(), u"À faire"_s);
    EXPECT_EQ(store().inspectorKey(), u"MOB-1"_s);
}

TEST_F(InlinePicker, KeysRightAfterAChoiceAreTheListsAgain)
{
    store().setFocusedKey(u"MOB-1"_s);
    openAssignee(u"MOB-1"_s);
    press(Qt::Key_Down);
    press(Qt::Key_Return);
    press(Qt::Key_Down);
    press(Qt::Key_Return);

    EXPECT_EQ(service->assignCalls.count(), 1);
    EXPECT_EQ(store().inspectorKey(), u"MOB-2"_s);
}

TEST_F(InlinePicker, ASecondClickOnAPickedRowPicksNothing)
{
    openAssignee(u"MOB-1"_s);
    const auto row = await(QAccessible::ListItem, u"Noam Talvère"_s);
    click(row);
    click(row);

    EXPECT_EQ(service->assignCalls.count(), 1);
    EXPECT_TRUE(closes());
    EXPECT_EQ(store().inspectorKey(), std::nullopt);
}
