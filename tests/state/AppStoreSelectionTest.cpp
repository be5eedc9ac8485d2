#include "state/AppCommands.h"
#include "state/AppStoreFixture.h"

#include <QSignalSpy>

using namespace Qt::StringLiterals;

namespace {

class AppStoreSelectionTest : public AppStoreFixture
{
protected:
    void SetUp() override
    {
        startSession();
        reloadWith(Issues);
        commands.setStore(store.get());
    }

    static KeyPress key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier,
                        const QString &text = {})
    {
        return KeyPress::make(key, 0, text, modifiers, text.toLower());
    }
    static KeyPress letter(char16_t character, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        return key(Qt::Key(QChar(character).toUpper().unicode()), modifiers, QString(character));
    }

    QString lastToast() const
    {
        return store->toasts().isEmpty() ? QString() : store->toasts().last().message;
    }
    std::optional<PaletteMode> picker(PickerKind kind, const QStringList &keys) const
    {
        return PaletteMode::picker(kind, keys);
    }

    QList<IssueStatus> offeredStatuses(const QStringList &keys) const
    {
        QList<IssueStatus> statuses;
        for (const auto &item : store->options(PickerKind::Status, keys))
            statuses += std::get<OptionAction::SetStatus>(item.run.value).status;
        return statuses;
    }

    AppCommands commands;
    const IssueList Issues = {sampleIssue(u"WEB-1"_s), sampleIssue(u"WEB-2"_s),
                              sampleIssue(u"WEB-3"_s), sampleIssue(u"WEB-4"_s, u"Terminé"_s)};
};

TEST_F(AppStoreSelectionTest, anArrowWithNothingFocusedGoesToTheFirstOrTheLastRow)
{
    EXPECT_TRUE(store->handleKey(key(Qt::Key_Down)));
    EXPECT_EQ(store->focusedKey(), store->flatVisibleKeys().first());
    store->setFocusedKey(std::nullopt);
    EXPECT_TRUE(store->handleKey(key(Qt::Key_Up)));
    EXPECT_EQ(store->focusedKey(), store->flatVisibleKeys().last());
}

TEST_F(AppStoreSelectionTest, downAtTheLastRowStaysThere)
{
    store->setFocusedKey(store->flatVisibleKeys().last());
    EXPECT_TRUE(store->handleKey(letter(u'j')));
    EXPECT_EQ(store->focusedKey(), store->flatVisibleKeys().last());
}

TEST_F(AppStoreSelectionTest, jAndKPassAKeyThatTheListHoldsTwice)
{
    reloadWith({sampleIssue(u"WEB-1"_s), sampleIssue(u"WEB-2"_s), sampleIssue(u"WEB-1"_s),
                sampleIssue(u"WEB-3"_s), sampleIssue(u"WEB-2"_s, u"En cours"_s)});
    for (const LayoutMode layout : {LayoutMode::List, LayoutMode::Board}) {
        store->setLayout(layout);
        store->setFocusedKey(std::nullopt);
        QStringList walked;
        for (int press = 0; press < 4; ++press) {
            store->handleKey(letter(u'j'));
            walked.append(store->focusedKey().value_or(QString()));
        }
        EXPECT_EQ(walked, (QStringList{u"WEB-1"_s, u"WEB-2"_s, u"WEB-3"_s, u"WEB-3"_s}));
        store->handleKey(letter(u'k'));
        store->handleKey(letter(u'k'));
        EXPECT_EQ(store->focusedKey(), u"WEB-1"_s);
    }
}

TEST_F(AppStoreSelectionTest, ofAKeyThatTheListHoldsTwiceOneRowHasTheFocusAndShowsAnEdit)
{
    store->setShowCompleted(true);
    reloadWith({sampleIssue(u"WEB-1"_s), sampleIssue(u"WEB-2"_s), sampleIssue(u"WEB-1"_s)});
    store->setFocusedKey(u"WEB-1"_s);
    store->rename(u"WEB-1"_s, u"Autre titre"_s);
    const auto *rows = store->issueList();
    QStringList focused;
    for (int row = 0; row < rows->rowCount(); ++row) {
        if (rows->index(row).data(IssueListModel::IsFocusedRole).toBool())
            focused.append(rows->index(row).data(Qt::DisplayRole).toString());
    }
    EXPECT_EQ(focused, QStringList(u"Autre titre"_s));
    EXPECT_EQ(rows->rowCount(), 3) << "a header and two issues";
}

TEST_F(AppStoreSelectionTest, shiftAndDownFromNoFocusChecksOnlyTheRowReached)
{
    EXPECT_TRUE(store->handleKey(key(Qt::Key_Down, Qt::ShiftModifier)));
    EXPECT_EQ(store->checked(), QSet{store->flatVisibleKeys().first()});
    EXPECT_TRUE(store->handleKey(letter(u'j', Qt::ShiftModifier)));
    EXPECT_EQ(store->checkedCount(), 2);
}

TEST_F(AppStoreSelectionTest, aPlainClickOpensTheIssueAndDropsTheSelection)
{
    store->setChecked({u"WEB-2"_s});
    store->handleClick(u"WEB-1"_s);
    EXPECT_FALSE(store->isSelecting());
    EXPECT_EQ(store->focusedKey(), u"WEB-1"_s);
    EXPECT_EQ(store->inspectorKey(), u"WEB-1"_s);
}

TEST_F(AppStoreSelectionTest, aControlClickChecksAndFocusesAndLeavesTheInspectorAlone)
{
    store->handleClick(u"WEB-1"_s);
    store->handleClick(u"WEB-2"_s, Qt::ControlModifier);
    EXPECT_EQ(store->checked(), QSet{u"WEB-2"_s});
    EXPECT_EQ(store->focusedKey(), u"WEB-2"_s);
    EXPECT_EQ(store->inspectorKey(), u"WEB-1"_s);
}

TEST_F(AppStoreSelectionTest, aShiftClickWithNoFocusActsAsAPlainClick)
{
    store->handleClick(u"WEB-2"_s, Qt::ShiftModifier);
    EXPECT_FALSE(store->isSelecting());
    EXPECT_EQ(store->inspectorKey(), u"WEB-2"_s);
}

TEST_F(AppStoreSelectionTest, aShiftClickChecksTheRangeAndKeepsWhatIsChecked)
{
    store->setChecked({u"WEB-4"_s});
    store->setFocusedKey(u"WEB-3"_s);
    store->handleClick(u"WEB-1"_s, Qt::ShiftModifier);
    EXPECT_EQ(store->checked(), (QSet{u"WEB-1"_s, u"WEB-2"_s, u"WEB-3"_s, u"WEB-4"_s}));
    EXPECT_EQ(store->focusedKey(), u"WEB-1"_s);
}

TEST_F(AppStoreSelectionTest, aShiftClickOnAKeyOfACollapsedGroupOnlyMovesTheFocus)
{
    store->setFocusedKey(u"WEB-1"_s);
    store->toggleGroup(store->groups().last().id);
    ASSERT_FALSE(store->flatVisibleKeys().contains(u"WEB-4"_s));
    store->handleClick(u"WEB-4"_s, Qt::ShiftModifier);
    EXPECT_FALSE(store->isSelecting());
    EXPECT_EQ(store->focusedKey(), u"WEB-4"_s);
}

TEST_F(AppStoreSelectionTest, escapeLeavesTheSelectionThenTheInspectorThenTheFilterThenPasses)
{
    store->setFilterText(u"WEB"_s);
    store->setInspectorKey(u"WEB-1"_s);
    store->setChecked({u"WEB-2"_s});
    EXPECT_TRUE(store->handleKey(key(Qt::Key_Escape)));
    EXPECT_FALSE(store->isSelecting());
    EXPECT_TRUE(store->showInspector());
    EXPECT_TRUE(store->handleKey(key(Qt::Key_Escape)));
    EXPECT_FALSE(store->showInspector());
    EXPECT_EQ(store->filterText(), u"WEB"_s);
    EXPECT_TRUE(store->handleKey(key(Qt::Key_Escape)));
    EXPECT_TRUE(store->filterText().isEmpty());
    EXPECT_FALSE(store->handleKey(key(Qt::Key_Escape)));
}

TEST_F(AppStoreSelectionTest, returnWithOnlyAnInspectorOpenFocusesItsIssue)
{
    EXPECT_FALSE(store->handleKey(key(Qt::Key_Return)));
    store->setInspectorKey(u"WEB-2"_s);
    EXPECT_TRUE(store->handleKey(key(Qt::Key_Return)));
    EXPECT_EQ(store->focusedKey(), u"WEB-2"_s);
}

TEST_F(AppStoreSelectionTest, controlReturnAsksForTheWindowOfTheTarget)
{
    const QSignalSpy asked(store.get(), &AppStore::openWindowRequested);
    EXPECT_FALSE(store->handleKey(key(Qt::Key_Return, Qt::ControlModifier)));
    store->setFocusedKey(u"WEB-2"_s);
    EXPECT_TRUE(store->handleKey(key(Qt::Key_Enter, Qt::ControlModifier)));
    ASSERT_EQ(asked.count(), 1);
    EXPECT_EQ(asked[0][0].toString(), u"WEB-2"_s);
    EXPECT_FALSE(store->showInspector());
}

TEST_F(AppStoreSelectionTest, spaceOpensAndClosesTheInspectorOnTheFocusedIssue)
{
    const KeyPress space = key(Qt::Key_Space, Qt::NoModifier, u" "_s);
    EXPECT_FALSE(store->handleKey(space));
    store->setFocusedKey(u"WEB-2"_s);
    EXPECT_TRUE(store->handleKey(space));
    EXPECT_EQ(store->inspectorKey(), u"WEB-2"_s);
    EXPECT_TRUE(store->handleKey(space));
    EXPECT_FALSE(store->showInspector());
}

TEST_F(AppStoreSelectionTest, thePreviewOpensOnTheFirstIssueAndClosesAgain)
{
    store->togglePeek();
    EXPECT_EQ(store->focusedKey(), store->flatVisibleKeys().first());
    EXPECT_EQ(store->inspectorKey(), store->focusedKey());
    store->togglePeek();
    EXPECT_FALSE(store->showInspector());
    store->setShowInspector(true);
    EXPECT_EQ(store->inspectorKey(), store->focusedKey());
    store->setShowInspector(false);
    EXPECT_FALSE(store->showInspector());
}

TEST_F(AppStoreSelectionTest, theKeySWithoutATargetShowsAToastAndOpensNothing)
{
    for (const char16_t character : {u's', u'p', u'a', u'l', u'i'})
        EXPECT_TRUE(store->handleKey(letter(character)));
    EXPECT_EQ(store->palette(), std::nullopt);
    ASSERT_EQ(store->toasts().size(), 5);
    EXPECT_EQ(store->toasts()[0].message, u"Sélectionne d'abord un ticket"_s);
    EXPECT_EQ(store->toasts()[0].symbol, u"hand.point.up.left"_s);
    EXPECT_FALSE(store->toasts()[0].isError());
}

TEST_F(AppStoreSelectionTest, theLettersOpenPickersForTheTargets)
{
    store->setChecked({u"WEB-3"_s, u"WEB-1"_s});
    const QStringList targets{u"WEB-1"_s, u"WEB-3"_s};
    EXPECT_TRUE(store->handleKey(letter(u's')));
    EXPECT_EQ(store->palette(), picker(PickerKind::Status, targets));
    EXPECT_TRUE(store->handleKey(letter(u'p')));
    EXPECT_EQ(store->palette(), picker(PickerKind::Priority, targets));
    EXPECT_TRUE(store->handleKey(letter(u'a')));
    EXPECT_EQ(store->palette(), picker(PickerKind::Assignee, targets));
    EXPECT_TRUE(store->handleKey(letter(u'l')));
    EXPECT_EQ(store->palette(), picker(PickerKind::Labels, targets));
    EXPECT_FALSE(store->handleKey(letter(u's', Qt::ControlModifier)));
}

TEST_F(AppStoreSelectionTest, theKeyIAssignsAllCheckedIssuesToMe)
{
    store->setChecked({u"WEB-1"_s, u"WEB-3"_s});
    EXPECT_TRUE(store->handleKey(letter(u'i')));
    ASSERT_EQ(service->assignCalls.count(), 2);
    EXPECT_EQ(service->assignCalls[0].argument<1>(), store->me());
    EXPECT_TRUE(store->toasts().isEmpty());
}

TEST_F(AppStoreSelectionTest, theKeyXChecksTheFocusedIssue)
{
    EXPECT_FALSE(store->handleKey(letter(u'x')));
    store->setFocusedKey(u"WEB-1"_s);
    EXPECT_TRUE(store->handleKey(letter(u'x')));
    EXPECT_EQ(store->checked(), QSet{u"WEB-1"_s});
}

TEST_F(AppStoreSelectionTest, theDigitsSwitchTheLayout)
{
    EXPECT_TRUE(store->handleKey(key(Qt::Key_2, Qt::NoModifier, u"2"_s)));
    EXPECT_EQ(store->layout(), LayoutMode::Board);
    EXPECT_TRUE(store->handleKey(key(Qt::Key_1, Qt::NoModifier, u"1"_s)));
    EXPECT_EQ(store->layout(), LayoutMode::List);
}

TEST_F(AppStoreSelectionTest, theKeyCOpensTheCreateScreenInTheProjectOfTheList)
{
    EXPECT_TRUE(store->handleKey(letter(u'c')));
    EXPECT_TRUE(store->isCreating());
    EXPECT_EQ(store->createProjectKey(), std::nullopt);
    store->select(IssueScope::project(u"API"_s, ProjectView::All));
    store->newIssue();
    EXPECT_EQ(store->createProjectKey(), u"API"_s);
    store->newIssue(u"WEB"_s);
    EXPECT_EQ(store->createProjectKey(), u"WEB"_s);
}

TEST_F(AppStoreSelectionTest, beforeASessionNoIssueCanBeMade)
{
    store->signOut();
    store->newIssue();
    EXPECT_FALSE(store->isCreating());
    EXPECT_FALSE(commands.runShortcut(letter(u'n', Qt::ControlModifier)));
    EXPECT_TRUE(commands.runShortcut(letter(u'k', Qt::ControlModifier)));
}

TEST_F(AppStoreSelectionTest, aContextMenuOutsideTheSelectionIsAboutItsRowAlone)
{
    store->setChecked({u"WEB-3"_s, u"WEB-1"_s});
    EXPECT_EQ(store->contextKeys(u"WEB-1"_s), (QStringList{u"WEB-1"_s, u"WEB-3"_s}));
    EXPECT_EQ(store->contextKeys(u"WEB-2"_s), QStringList{u"WEB-2"_s});
    EXPECT_EQ(store->checkedCount(), 2);
}

TEST_F(AppStoreSelectionTest, aCommandOnGivenIssuesLeavesTheChosenOnesAlone)
{
    const QSignalSpy asked(store.get(), &AppStore::openWindowRequested);
    const QStringList given{u"WEB-2"_s, u"WEB-3"_s};
    store->setFocusedKey(u"WEB-1"_s);
    store->run(Command::CopyKeys, given);
    EXPECT_EQ(desktop.copied.last(), u"WEB-2, WEB-3"_s);
    store->run(Command::CopyLink, given);
    EXPECT_EQ(desktop.copied.last(), u"https://exemple.atlassian.net/browse/WEB-2"_s);
    store->run(Command::OpenWindow, given);
    EXPECT_EQ(asked.last(), QVariantList{u"WEB-2"_s});
    store->run(Command::AssignToMe, given);
    EXPECT_EQ(store->issue(u"WEB-1"_s).value()->assignee, std::nullopt);
    EXPECT_EQ(store->issue(u"WEB-3"_s).value()->assignee, store->me());
    store->run(Command::PickLabels, given);
    EXPECT_EQ(store->palette(), picker(PickerKind::Labels, given));
    store->run(Command::OpenIssue, given);
    EXPECT_EQ(store->focusedKey(), u"WEB-2"_s);
    EXPECT_EQ(store->inspectorKey(), u"WEB-2"_s);
}

TEST_F(AppStoreSelectionTest, copyKeysGivesASortedListWhateverTheOrder)
{
    store->run(Command::CopyKeys);
    EXPECT_TRUE(desktop.copied.isEmpty());
    store->setChecked({u"WEB-3"_s, u"WEB-1"_s, u"WEB-2"_s});
    EXPECT_TRUE(commands.runShortcut(letter(u'.', Qt::ControlModifier)));
    EXPECT_EQ(desktop.copied.last(), u"WEB-1, WEB-2, WEB-3"_s);
    EXPECT_EQ(lastToast(), u"Clés copié"_s);
    store->run(Command::CopyKeys, {u"WEB-9"_s});
    EXPECT_EQ(lastToast(), u"Clé WEB-9 copié"_s);
    EXPECT_EQ(store->toasts().last().symbol, u"doc.on.doc.fill"_s);
}

TEST_F(AppStoreSelectionTest, branchAndLinkAreThoseOfTheFirstTarget)
{
    const auto controlShift = Qt::ControlModifier | Qt::ShiftModifier;
    EXPECT_TRUE(commands.runShortcut(letter(u'o', controlShift)));
    EXPECT_TRUE(desktop.opened.isEmpty());
    store->setFocusedKey(u"WEB-2"_s);
    EXPECT_TRUE(
        commands.runShortcut(KeyPress::make(Qt::Key_Greater, 0, u">"_s, controlShift, u"."_s)));
    EXPECT_EQ(desktop.copied.last(), store->issue(u"WEB-2"_s).value()->branchName());
    EXPECT_EQ(lastToast(), u"Nom de branche copié"_s);
    EXPECT_TRUE(
        commands.runShortcut(KeyPress::make(Qt::Key_Less, 0, u"<"_s, controlShift, u","_s)));
    EXPECT_EQ(desktop.copied.last(), u"https://exemple.atlassian.net/browse/WEB-2"_s);
    EXPECT_EQ(lastToast(), u"Lien copié"_s);
    EXPECT_TRUE(commands.runShortcut(letter(u'o', controlShift)));
    EXPECT_EQ(desktop.opened.last(), QUrl(u"https://exemple.atlassian.net/browse/WEB-2"_s));
    store->openSite();
    EXPECT_EQ(desktop.opened.last(), QUrl(u"https://exemple.atlassian.net"_s));
    store->run(Command::CopyBranch, {u"ABC-1"_s});
    EXPECT_EQ(desktop.copied.size(), 2) << "the branch of an unknown issue is unknown";
}

TEST_F(AppStoreSelectionTest, thePaletteShortcutTwiceLeavesItClosed)
{
    EXPECT_TRUE(commands.runShortcut(letter(u'k', Qt::ControlModifier)));
    EXPECT_EQ(store->palette(), PaletteMode::root());
    EXPECT_TRUE(commands.runShortcut(letter(u'k', Qt::ControlModifier)));
    EXPECT_EQ(store->palette(), std::nullopt);
}

TEST_F(AppStoreSelectionTest, theReloadShortcutReloads)
{
    const int before = service->issuesCalls.count();
    EXPECT_TRUE(commands.runShortcut(letter(u'r', Qt::ControlModifier)));
    EXPECT_EQ(service->issuesCalls.count(), before + 1);
}

TEST_F(AppStoreSelectionTest, theStatusesOfAnIssueWithUnknownTransitionsAreItsProjects)
{
    const IssueStatus doing(u"3"_s, u"In Progress"_s, u"indeterminate"_s);
    answerEverything();
    service->statusesCalls.answerWith({doing});
    service->issuesCalls.answerWith(Issues);
    const TaskResult<void> restarted(store->startDemo());
    EXPECT_EQ(offeredStatuses({u"WEB-1"_s}), QList{doing});

    const IssueStatus closed(u"4"_s, u"Done"_s, u"done"_s);
    service->transitionsCalls.answerWith({{u"t1"_s, u"Finir"_s, closed}});
    const TaskResult<void> opened(store->loadDetails(u"WEB-1"_s));
    EXPECT_EQ(offeredStatuses({u"WEB-1"_s}), (QList{Issues[0]->status, closed}));
}

TEST_F(AppStoreSelectionTest, pickingARowCarriesItOut)
{
    const auto rows = store->options(PickerKind::Assignee, {u"WEB-1"_s, u"WEB-2"_s});
    ASSERT_EQ(rows.size(), 2);
    EXPECT_TRUE(rows[0].isSelected);
    store->run(rows[1].run);
    EXPECT_EQ(service->assignCalls.count(), 2);
    EXPECT_EQ(store->issue(u"WEB-2"_s).value()->assignee, store->me());
    store->run(OptionAction{});
    store->run(OptionAction{OptionAction::ToggleLabel{u"ios"_s, {u"WEB-1"_s}}});
    EXPECT_EQ(store->issue(u"WEB-1"_s).value()->labels, QStringList{u"ios"_s});
}

} // namespace
