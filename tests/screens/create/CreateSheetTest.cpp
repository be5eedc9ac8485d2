#include "app/WindowFixture.h"
#include "model/JiraError.h"
#include "screens/kit/layers/WindowLayers.h"

#include <QQuickItem>
#include <QTest>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

IssueType type(const QString &name)
{
    return {.id = u"id "_s + name, .name = name};
}

Project project(const QString &key, const QString &name)
{
    return {u"id "_s + key, key, name, {}, {type(u"Story"_s), type(u"Tâche"_s)}, false};
}

} // namespace

/// The sheet for a new issue above the main window, used by keys and pointer.
class CreateSheet : public WindowFixture
{
protected:
    CreateSheet()
    {
        serve({u"MOB-1"_s, u"MOB-2"_s});
        openOnDemo(projects);
        desktop->setPrefersReducedMotion(true);
        service->createCalls.hold();
        settle();
    }

    void openOnDemo(const QList<Project> &served)
    {
        beforeOpening = [this, served] {
            service->projectsCalls.answerWith(served);
            service->projectCalls.answerBy([served](const QString &key) {
                return *std::ranges::find(served, key, &Project::key);
            });
            service->assignableUsersCalls.answerWith({JiraUser{u"zoe"_s, u"Zoé Blanc"_s, {}, {}}});
            service->prioritiesCalls.answerWith({IssuePriority(u"1"_s, u"High"_s)});
        };
        WindowFixture::openOnDemo();
    }

    void openSheet()
    {
        press(Qt::Key_C);
        awaitSheet();
    }
    /// Waits until the title has the focus and can be read: for a reader it is invisible until the fade has begun.
    void awaitSheet()
    {
        EXPECT_TRUE(QTest::qWaitFor([this] { return focusedName() == u"Titre du ticket"_s; }))
            << focusedName().toStdString();
        await(QAccessible::EditableText, u"Titre du ticket"_s);
    }
    bool closes() { return isGone(QAccessible::EditableText, u"Titre du ticket"_s); }
    QString focusedName()
    {
        auto *item = window().activeFocusItem();
        auto *known = item ? QAccessible::queryAccessibleInterface(item) : nullptr;
        return known ? known->text(QAccessible::Name) : QString();
    }
    QString valueOf(const QString &field)
    {
        const auto found = spokenIn(window(), QAccessible::EditableText, field);
        return found.isEmpty() ? u"(missing)"_s : found.first().value;
    }
    void submit() { press(Qt::Key_Return, Qt::ControlModifier); }
    IssueDraft sent() { return service->createCalls.last().argument(); }

    const QList<Project> projects{project(u"MOB"_s, u"App mobile"_s), project(u"WEB"_s, u"Web"_s)};
};

// Opening and closing -------------------------------------------------------------------------------------------------

TEST_F(CreateSheet, TheKeyCOpensItWithTheFocusInTheTitleAndLettersAreText)
{
    openSheet();
    type(u"jcx1"_s);
    EXPECT_EQ(valueOf(u"Titre du ticket"_s), u"jcx1"_s);
    EXPECT_EQ(store().focusedKey(), std::nullopt);
}

TEST_F(CreateSheet, EscapeClosesItAndTheKeysOfTheListWorkAgain)
{
    openSheet();
    press(Qt::Key_Escape);
    EXPECT_FALSE(store().isCreating());
    EXPECT_TRUE(closes());
    press(Qt::Key_Down);
    EXPECT_EQ(store().focusedKey(), u"MOB-1"_s);
}

TEST_F(CreateSheet, TheCloseButtonClosesIt)
{
    openSheet();
    click(find(QAccessible::Button, u"Fermer"_s));
    EXPECT_TRUE(closes());
    EXPECT_FALSE(store().isCreating());
}

TEST_F(CreateSheet, ARequestWhileItFadesOutOpensAFreshOne)
{
    openSheet();
    type(u"Panne"_s);
    press(Qt::Key_Escape);
    press(Qt::Key_C);
    EXPECT_TRUE(store().isCreating());
    awaitSheet();
    EXPECT_EQ(valueOf(u"Titre du ticket"_s), QString());
    type(u"Autre"_s);
    EXPECT_EQ(valueOf(u"Titre du ticket"_s), u"Autre"_s);
}

TEST_F(CreateSheet, EveryButtonForANewIssueOpensIt)
{
    const auto buttons = spokenIn(window(), QAccessible::Button, u"Nouveau ticket"_s);
    ASSERT_EQ(buttons.size(), 3) << "toolbar, sidebar and the only group";
    for (const Spoken &button : buttons) {
        click(button);
        awaitSheet();
        press(Qt::Key_Escape);
        EXPECT_TRUE(closes());
    }
}

TEST_F(CreateSheet, TheButtonOfAColumnOpensIt)
{
    press(Qt::Key_2);
    settle();
    const auto buttons = spokenIn(window(), QAccessible::Button, u"Nouveau ticket"_s);
    ASSERT_GE(buttons.size(), 3);
    for (const Spoken &button : buttons) {
        click(button);
        awaitSheet();
        press(Qt::Key_Escape);
        EXPECT_TRUE(closes());
    }
}

TEST_F(CreateSheet, ItsShortcutAndThePaletteOpenIt)
{
    press(Qt::Key_N, Qt::ControlModifier);
    awaitSheet();
    press(Qt::Key_Escape);
    EXPECT_TRUE(closes());
    press(Qt::Key_K, Qt::ControlModifier);
    type(u"nouveau"_s);
    settle();
    press(Qt::Key_Return);
    awaitSheet();
    EXPECT_FALSE(store().palette());
    press(Qt::Key_Escape);
    EXPECT_TRUE(closes());
    press(Qt::Key_Down);
    EXPECT_EQ(store().focusedKey(), u"MOB-1"_s) << "the focus returns to the list";
}

TEST_F(CreateSheet, TheMenuOfAProjectOpensItInThatProject)
{
    rightClick(find(QAccessible::ListItem, u"Web"_s));
    click(await(QAccessible::MenuItem, u"Nouveau ticket dans Web"_s));
    awaitSheet();
    EXPECT_EQ(spokenIn(window(), QAccessible::Button, u"Projet : Web"_s).size(), 1);
}

TEST_F(CreateSheet, NothingBehindItCanBeReached)
{
    const auto behind = find(QAccessible::ListItem, u"Créés par moi"_s);
    const auto before = store().scope();
    openSheet();
    click(behind);
    EXPECT_EQ(store().scope(), before);
    EXPECT_TRUE(store().isCreating());
    press(Qt::Key_K, Qt::ControlModifier);
    EXPECT_FALSE(store().palette());
    for (int i = 0; i < 20; ++i) {
        press(Qt::Key_Tab);
        EXPECT_TRUE(WindowLayers::of(window()).top()->hasFocus());
    }
}

TEST_F(CreateSheet, TheEndOfTheSessionClosesIt)
{
    openSheet();
    store().signOut();
    EXPECT_FALSE(store().isCreating());
    EXPECT_TRUE(closes());
}

// Fields --------------------------------------------------------------------------------------------------------------

TEST_F(CreateSheet, TabWalksItFromTheTitleToTheButtonAndRound)
{
    openSheet();
    type(u"Panne"_s);
    QStringList names;
    for (int i = 0; i < 10; ++i) {
        names.append(focusedName());
        press(Qt::Key_Tab);
    }
    EXPECT_EQ(names, (QStringList{u"Titre du ticket"_s, u"Description"_s, u"Type : Tâche"_s,
                                  u"Priorité : Priorité"_s, u"Assigné : Non assigné"_s,
                                  u"Étiquettes : Étiquettes"_s, u"Créer d'autres tickets"_s,
                                  u"Créer le ticket"_s, u"Projet : App mobile"_s, u"Fermer"_s}));
    EXPECT_EQ(focusedName(), u"Titre du ticket"_s);
}

TEST_F(CreateSheet, ItIsADialogWithAHeading)
{
    openSheet();
    EXPECT_EQ(spokenIn(window(), QAccessible::Dialog, u"Nouveau ticket"_s).size(), 1);
    EXPECT_EQ(spokenIn(window(), QAccessible::Heading, u"Nouveau ticket"_s).size(), 1);
}

TEST_F(CreateSheet, ReturnInTheTitleGoesOnToTheDescription)
{
    openSheet();
    type(u"Panne"_s);
    press(Qt::Key_Return);
    EXPECT_EQ(focusedName(), u"Description"_s);
    EXPECT_EQ(service->createCalls.count(), 0);
    type(u"Depuis"_s);
    press(Qt::Key_Return);
    type(u"hier"_s);
    EXPECT_EQ(valueOf(u"Description"_s), u"Depuis\nhier"_s);
}

TEST_F(CreateSheet, AChipIsChosenByKeysAlone)
{
    openSheet();
    type(u"Panne"_s);
    press(Qt::Key_Tab);
    press(Qt::Key_Tab);
    press(Qt::Key_Space);
    await(QAccessible::EditableText, u"Type de ticket…"_s);
    type(u"sto"_s);
    press(Qt::Key_Return);
    EXPECT_TRUE(isGone(QAccessible::EditableText, u"Type de ticket…"_s));
    EXPECT_TRUE(QTest::qWaitFor([this] { return focusedName() == u"Type : Story"_s; }));
    submit();
    EXPECT_EQ(sent().issueTypeID, u"id Story"_s);
}

TEST_F(CreateSheet, EscapeClosesTheListOfAChipAndNotTheSheet)
{
    openSheet();
    click(spokenIn(window(), QAccessible::Button, u"Assigné : Non assigné"_s).last());
    await(QAccessible::EditableText, u"Assigner à…"_s);
    press(Qt::Key_Escape);
    EXPECT_TRUE(isGone(QAccessible::EditableText, u"Assigner à…"_s));
    EXPECT_TRUE(store().isCreating());
}

TEST_F(CreateSheet, ALabelCanBeCreatedAndTheListStaysOpen)
{
    openSheet();
    click(find(QAccessible::Button, u"Étiquettes"_s));
    await(QAccessible::EditableText, u"Étiquettes…"_s);
    type(u"api"_s);
    settle();
    press(Qt::Key_Return);
    EXPECT_EQ(spokenIn(window(), QAccessible::EditableText, u"Étiquettes…"_s).size(), 1);
    press(Qt::Key_Escape);
    EXPECT_TRUE(isGone(QAccessible::EditableText, u"Étiquettes…"_s));
    EXPECT_EQ(spokenIn(window(), QAccessible::Button, u"Étiquettes : api"_s).size(), 1);
}

// Creating ------------------------------------------------------------------------------------------------------------

TEST_F(CreateSheet, WithoutATitleNeitherTheShortcutNorTheButtonCreates)
{
    openSheet();
    submit();
    type(u"   "_s);
    submit();
    click(find(QAccessible::Button, u"Créer le ticket"_s));
    EXPECT_EQ(service->createCalls.count(), 0);
    EXPECT_EQ(valueOf(u"Titre du ticket"_s), u"   "_s) << "the shortcut inserts nothing";
}

TEST_F(CreateSheet, TheShortcutCreatesOnceFromTheDescriptionToo)
{
    openSheet();
    type(u"Panne"_s);
    press(Qt::Key_Tab);
    type(u"Depuis hier"_s);
    submit();
    submit();
    ASSERT_EQ(service->createCalls.count(), 1);
    EXPECT_EQ(sent().summary, u"Panne"_s);
    EXPECT_EQ(valueOf(u"Description"_s), u"Depuis hier"_s);
    service->createCalls.last().finish(u"MOB-3"_s);
    EXPECT_TRUE(closes());
    EXPECT_EQ(store().inspectorKey(), u"MOB-3"_s);
}

TEST_F(CreateSheet, WhileItIsSentTheTextsCannotBeChangedAndEscapeStillCloses)
{
    openSheet();
    type(u"Panne"_s);
    click(find(QAccessible::Button, u"Créer le ticket"_s));
    EXPECT_EQ(spokenIn(window(), QAccessible::Animation, u"Création en cours"_s).size(), 1);
    press(Qt::Key_Tab);
    type(u"x"_s);
    EXPECT_EQ(valueOf(u"Titre du ticket"_s), u"Panne"_s);
    EXPECT_EQ(valueOf(u"Description"_s), QString());
    press(Qt::Key_Escape);
    EXPECT_TRUE(closes());
    service->createCalls.last().finish(u"MOB-3"_s);
    openSheet();
    EXPECT_TRUE(spokenIn(window(), QAccessible::Button, u"Reprendre le brouillon"_s).isEmpty());
}

TEST_F(CreateSheet, AFailureKeepsEveryFieldAndTheFocus)
{
    openSheet();
    type(u"Panne"_s);
    press(Qt::Key_Tab);
    type(u"Depuis hier"_s);
    submit();
    service->createCalls.last().fail(JiraError(JiraError::InvalidResponse{}));
    settle();
    EXPECT_TRUE(store().isCreating());
    EXPECT_EQ(valueOf(u"Titre du ticket"_s), u"Panne"_s);
    EXPECT_EQ(valueOf(u"Description"_s), u"Depuis hier"_s);
    EXPECT_EQ(focusedName(), u"Description"_s);
    EXPECT_EQ(store().toasts().size(), 1);
    type(u" soir"_s);
    EXPECT_EQ(valueOf(u"Description"_s), u"Depuis hier soir"_s);
    submit();
    EXPECT_EQ(service->createCalls.count(), 2);
}

TEST_F(CreateSheet, ASeriesStaysOpenWithTheFocusInAnEmptyTitle)
{
    openSheet();
    type(u"Panne"_s);
    click(find(QAccessible::CheckBox, u"Créer d'autres tickets"_s));
    press(Qt::Key_Tab);
    submit();
    service->createCalls.last().finish(u"MOB-3"_s);
    EXPECT_TRUE(QTest::qWaitFor([this] { return focusedName() == u"Titre du ticket"_s; }));
    EXPECT_TRUE(store().isCreating());
    EXPECT_EQ(valueOf(u"Titre du ticket"_s), QString());
    type(u"Suite"_s);
    submit();
    EXPECT_EQ(sent().summary, u"Suite"_s);
}

TEST_F(CreateSheet, AnAbandonedTextIsOfferedAndRestored)
{
    openSheet();
    EXPECT_TRUE(spokenIn(window(), QAccessible::Button, u"Reprendre le brouillon"_s).isEmpty());
    type(u"Panne"_s);
    press(Qt::Key_Tab);
    type(u"Depuis hier"_s);
    press(Qt::Key_Escape);
    EXPECT_TRUE(closes());
    openSheet();
    EXPECT_EQ(valueOf(u"Titre du ticket"_s), QString());
    click(await(QAccessible::Button, u"Reprendre le brouillon"_s));
    EXPECT_EQ(valueOf(u"Titre du ticket"_s), u"Panne"_s);
    EXPECT_EQ(valueOf(u"Description"_s), u"Depuis hier"_s);
    EXPECT_EQ(focusedName(), u"Titre du ticket"_s);
    EXPECT_TRUE(isGone(QAccessible::Button, u"Reprendre le brouillon"_s));
}

// Space ---------------------------------------------------------------------------------------------------------------

TEST_F(CreateSheet, AtTheSmallestWindowItIsCompletelyVisibleWhateverIsTyped)
{
    window().resize(940, 580);
    settle();
    openSheet();
    type(QString(400, u'm'));
    press(Qt::Key_Tab);
    for (int i = 0; i < 40; ++i) {
        type(u"ligne"_s);
        press(Qt::Key_Return);
    }
    settle();
    const QRect inside(0, 0, window().width(), window().height());
    for (const QString &name : {u"Fermer"_s, u"Créer le ticket"_s, u"Projet"_s})
        EXPECT_TRUE(inside.contains(find(QAccessible::Button, name).box)) << name.toStdString();
    for (int i = 0; i < 4; ++i)
        press(Qt::Key_Tab);
    settle();
    EXPECT_EQ(focusedName(), u"Étiquettes : Étiquettes"_s);
    EXPECT_TRUE(inside.contains(find(QAccessible::Button, u"Étiquettes"_s).box))
        << "the field with the focus is scrolled into view";
}
