#include "app/WindowFixture.h"
#include "model/JiraError.h"
#include "shell/onboarding/AnimatedMeshBackground.h"

#include <QElapsedTimer>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const auto Site = u"https://exemple.atlassian.net"_s;
const JiraError Refused(JiraError::Http{401, {}});

} // namespace

class Onboarding : public WindowFixture
{
protected:
    AnimatedMeshBackground *mesh() { return meshIn(*window().contentItem()); }
    static AnimatedMeshBackground *meshIn(const QQuickItem &parent)
    {
        for (QQuickItem *child : parent.childItems()) {
            if (auto *mesh = qobject_cast<AnimatedMeshBackground *>(child))
                return mesh;
            if (auto *mesh = meshIn(*child))
                return mesh;
        }
        return nullptr;
    }
    bool isEnabled(const QString &button)
    {
        const QQuickItem *item = itemNamed(*window().contentItem(), button);
        EXPECT_TRUE(item);
        return item && item->isEnabled();
    }
    static const QQuickItem *itemNamed(const QQuickItem &parent, const QString &name)
    {
        for (const QQuickItem *child : parent.childItems()) {
            if (child->property("accessibleName").toString() == name)
                return child;
            if (const QQuickItem *found = itemNamed(*child, name))
                return found;
        }
        return nullptr;
    }
    /// The accessible name of the item with the keyboard focus.
    QString focused()
    {
        for (const auto &thing : spokenIn(window())) {
            if (thing.state.focused && !thing.name.isEmpty())
                return thing.name;
        }
        return {};
    }
    void resizeTo(const QSize &size)
    {
        window().setMinimumSize({});
        window().resize(size);
        ASSERT_TRUE(QTest::qWaitFor([&] { return window().size() == size; }));
        settle();
    }
    /// The card with the notice of a session that could not be opened.
    void openWithNotice()
    {
        saveCredentials(Site, u"noam@exemple.fr"_s, u"jeton"_s);
        beforeOpening = [this] {
            keychain->reads.answerWith(Keychain::Failed{-1, u"le trousseau est verrouillé"_s});
        };
        openSignedOut();
    }
    void turnWheel(int steps)
    {
        const QPointF middle(window().width() / 2.0, 4);
        QWheelEvent turn(middle, window().mapToGlobal(middle), {}, {0, 120 * steps}, {}, {},
                         Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&window(), &turn);
    }
    bool isInWindow(const QRectF &box) { return QRectF(QPointF(), window().size()).contains(box); }
    void fill(const QString &site, const QString &email, const QString &token)
    {
        type(site);
        press(Qt::Key_Tab);
        type(email);
        press(Qt::Key_Tab);
        type(token);
    }
};

TEST_F(Onboarding, TheCardNamesAllThatItOffers)
{
    openSignedOut();

    find(QAccessible::Heading, u"Jira au bout des doigts"_s);
    EXPECT_EQ(find(QAccessible::EditableText, u"Site Jira"_s).description,
              u"Par exemple mon-equipe.atlassian.net"_s);
    find(QAccessible::EditableText, u"E-mail du compte Atlassian"_s);
    find(QAccessible::EditableText, u"Token API"_s);
    find(QAccessible::Button, u"Se connecter"_s);
    find(QAccessible::Link, u"Créer un token API"_s);
    find(QAccessible::StaticText, u"Le token reste dans le trousseau du système."_s);
    find(QAccessible::Button, u"Explorer en mode démo"_s);
    EXPECT_TRUE(spokenIn(window(), QAccessible::AlertMessage, QString()).isEmpty());
}

TEST_F(Onboarding, TypingSiteEmailAndTokenAndReturnSignsIn)
{
    openSignedOut();
    serve({u"MOB-1"_s});
    EXPECT_FALSE(isEnabled(u"Se connecter"_s));

    fill(u"exemple"_s, u"noam@exemple.fr"_s, u"jeton"_s);
    EXPECT_TRUE(isEnabled(u"Se connecter"_s));
    press(Qt::Key_Return);

    EXPECT_TRUE(QTest::qWaitFor([&] { return rowsShown() == QStringList{u"MOB-1"_s}; }));
    EXPECT_EQ(clientsMade, QList{(JiraCredentials{QUrl(Site), u"noam@exemple.fr"_s, u"jeton"_s})});
    EXPECT_EQ(keychain->items, (std::map<QString, QString>{{Site, u"jeton"_s}}));
    EXPECT_FALSE(store().isDemo());
}

TEST_F(Onboarding, AfterTheSignInTheKeyboardBelongsToTheListAlsoAfterThePalette)
{
    openSignedOut();
    serve({u"MOB-1"_s, u"MOB-2"_s});
    fill(u"exemple"_s, u"noam@exemple.fr"_s, u"jeton"_s);
    press(Qt::Key_Return);
    ASSERT_TRUE(QTest::qWaitFor([&] { return rowsShown().size() == 2; }));
    EXPECT_TRUE(find(QAccessible::List, u"Mes tickets"_s).state.focused);

    press(Qt::Key_K, Qt::ControlModifier);
    press(Qt::Key_Escape);
    press(Qt::Key_2);
    EXPECT_EQ(store().layout(), LayoutMode::Board);
}

TEST_F(Onboarding, AnEmptyEmailWithSiteAndTokenSignsIn)
{
    openSignedOut();
    serve({});

    fill(u"jira.exemple.fr"_s, {}, u"jeton"_s);
    press(Qt::Key_Enter, Qt::KeypadModifier);

    EXPECT_EQ(store().phase(), AppStore::Phase::Ready);
    EXPECT_EQ(clientsMade.last().email, QString());
}

TEST_F(Onboarding, ReturnWithTheButtonDisabledDoesNothing)
{
    openSignedOut();

    press(Qt::Key_Return);
    fill(u"   "_s, u"noam@exemple.fr"_s, u"jeton"_s);
    EXPECT_FALSE(isEnabled(u"Se connecter"_s));
    press(Qt::Key_Return);

    EXPECT_EQ(store().phase(), AppStore::Phase::SignedOut);
    EXPECT_TRUE(clientsMade.isEmpty());
}

TEST_F(Onboarding, ReturnOnAnotherControlIsThatControls)
{
    openSignedOut();
    fill(u"exemple"_s, {}, u"jeton"_s);
    press(Qt::Key_Tab);
    press(Qt::Key_Tab);
    ASSERT_EQ(focused(), u"Créer un token API"_s);

    press(Qt::Key_Return);

    EXPECT_EQ(desktop->opened.size(), 1);
    EXPECT_TRUE(clientsMade.isEmpty());
}

TEST_F(Onboarding, TabWalksTheCardFromTopToBottom)
{
    openSignedOut();
    QStringList walk{focused()};
    for (int i = 0; i < 4; ++i) {
        press(Qt::Key_Tab);
        walk += focused();
    }

    EXPECT_EQ(walk, (QStringList{u"Site Jira"_s, u"E-mail du compte Atlassian"_s, u"Token API"_s,
                                 u"Créer un token API"_s, u"Explorer en mode démo"_s}));
}

TEST_F(Onboarding, TypedTextHasTheFontOfTheProgram)
{
    openSignedOut();
    type(u"exemple"_s);
    for (int field = 0; field < 3; ++field) {
        const auto font = window().activeFocusItem()->property("font").value<QFont>();
        EXPECT_EQ(font.families().value(0), u"Velmora"_s) << field;
        EXPECT_EQ(font.pixelSize(), 14) << field;
        press(Qt::Key_Tab);
    }
}

TEST_F(Onboarding, TabBringsWhatIsFocusedIntoASmallWindow)
{
    // The smallest window, and its logical size where everything is 1.5 and 2 times as large.
    openWithNotice();
    for (const QSize size : {QSize(940, 580), QSize(626, 386), QSize(470, 290)}) {
        resizeTo(size);
        QSet<QString> reached;
        for (int i = 0; i < 6; ++i) {
            press(Qt::Key_Tab);
            settle();
            const auto *item = window().activeFocusItem();
            EXPECT_TRUE(isInWindow(item->mapRectToScene(QRectF(QPointF(), item->size()))))
                << focused().toStdString() << " at " << size.width();
            reached += focused();
        }
        EXPECT_TRUE(reached.contains(u"Explorer en mode démo"_s));
        EXPECT_TRUE(reached.contains(u"Réessayer"_s));
    }
}

TEST_F(Onboarding, TheWheelShowsTheWholeCardInASmallWindow)
{
    openWithNotice();
    for (const QSize size : {QSize(940, 580), QSize(470, 290)}) {
        resizeTo(size);
        EXPECT_TRUE(QTest::qWaitFor([&] {
            turnWheel(-1);
            return isInWindow(find(QAccessible::Button, u"Explorer en mode démo"_s).box);
        })) << size.width();
        EXPECT_TRUE(QTest::qWaitFor([&] {
            turnWheel(1);
            return isInWindow(find(QAccessible::Graphic, u"Velmora"_s).box);
        })) << size.width();
        for (const auto &thing : spokenIn(window())) {
            EXPECT_GE(thing.box.left(), 0) << thing.name.toStdString();
            EXPECT_LE(thing.box.right(), window().width()) << thing.name.toStdString();
        }
    }
}

TEST_F(Onboarding, ARefusedSignInSaysWhyUnderTheFieldsAndKeepsTheToken)
{
    openSignedOut();
    service->currentUserCalls.failWith(Refused);
    fill(u"exemple"_s, u"noam@exemple.fr"_s, u"jetno"_s);
    press(Qt::Key_Return);

    find(QAccessible::AlertMessage, Refused.message());
    EXPECT_EQ(focused(), u"Token API"_s);

    service->currentUserCalls.answerWith(JiraUser{u"u1"_s, u"Noam"_s, {}, {}});
    serve({});
    press(Qt::Key_Backspace);
    press(Qt::Key_Backspace);
    type(u"on"_s);
    press(Qt::Key_Return);

    EXPECT_EQ(store().phase(), AppStore::Phase::Ready);
    EXPECT_EQ(keychain->items[Site], u"jeton"_s);
}

TEST_F(Onboarding, EscapeTakesTheErrorAway)
{
    openSignedOut();
    service->currentUserCalls.failWith(Refused);
    fill(u"exemple"_s, u"noam@exemple.fr"_s, u"jetno"_s);
    press(Qt::Key_Return);
    press(Qt::Key_Escape);

    EXPECT_TRUE(spokenIn(window(), QAccessible::AlertMessage, QString()).isEmpty());
}

TEST_F(Onboarding, WhileItConnectsAWheelTurnsAndTheButtonIsDisabled)
{
    openSignedOut();
    service->currentUserCalls.hold();
    fill(u"exemple"_s, {}, u"jeton"_s);
    click(find(QAccessible::Button, u"Se connecter"_s));

    EXPECT_FALSE(isEnabled(u"Se connecter"_s));
    find(QAccessible::Animation, u"Chargement"_s);
    press(Qt::Key_Return);
    EXPECT_EQ(clientsMade.size(), 1);
}

TEST_F(Onboarding, TheTokenIsReadOutToNobody)
{
    openSignedOut();
    fill(u"exemple"_s, {}, u"jeton"_s);

    for (const auto &thing : spokenIn(window()))
        EXPECT_FALSE(thing.name.contains(u"jeton"_s) || thing.value.contains(u"jeton"_s));
    EXPECT_EQ(find(QAccessible::EditableText, u"Token API"_s).description, u"Texte masqué"_s);
}

TEST_F(Onboarding, AfterASignOutTheFormIsFilledAndTheTokenGone)
{
    serve({});
    saveCredentials(Site, u"noam@exemple.fr"_s, u"jeton"_s);
    openSignedOut();
    ASSERT_EQ(store().phase(), AppStore::Phase::Ready);

    store().signOut();

    EXPECT_EQ(find(QAccessible::EditableText, u"Site Jira"_s).value, u"exemple.atlassian.net"_s);
    EXPECT_EQ(find(QAccessible::EditableText, u"E-mail"_s).value, u"noam@exemple.fr"_s);
    EXPECT_FALSE(isEnabled(u"Se connecter"_s)) << "the token is empty";
    EXPECT_EQ(focused(), u"Token API"_s);
    EXPECT_TRUE(keychain->items.empty());
}

TEST_F(Onboarding, ASavedSessionOpensOnItsList)
{
    serve({u"MOB-1"_s});
    saveCredentials(Site, {}, u"jeton"_s);
    openSignedOut();

    EXPECT_TRUE(QTest::qWaitFor([&] { return rowsShown() == QStringList{u"MOB-1"_s}; }));
    EXPECT_EQ(clientsMade.last().authorizationHeader(), "Bearer jeton");
}

TEST_F(Onboarding, TheWindowIsPaintedBeforeTheStoreOfSecretsIsAsked)
{
    saveCredentials(Site, {}, u"jeton"_s);
    bool wasPainted = false;
    beforeOpening = [&] {
        keychain->reads.answerBy([&](const QString &) {
            wasPainted = window().isSceneGraphInitialized();
            return Keychain::Missing();
        });
    };
    openSignedOut();

    EXPECT_EQ(keychain->reads.count(), 1);
    EXPECT_TRUE(wasPainted);
}

TEST_F(Onboarding, ARefusedReadShowsItsNoticeUntilARetrySucceeds)
{
    openWithNotice();
    const auto notice = find(QAccessible::AlertMessage, u"Session enregistrée inaccessible"_s);
    EXPECT_TRUE(notice.name.contains(u"(le trousseau est verrouillé)"_s));

    click(find(QAccessible::Button, u"Réessayer"_s));
    EXPECT_EQ(store().phase(), AppStore::Phase::SignedOut);

    serve({});
    keychain->reads.answerWith(Keychain::Found{u"jeton"_s});
    click(find(QAccessible::Button, u"Réessayer"_s));
    EXPECT_EQ(store().phase(), AppStore::Phase::Ready);
}

TEST_F(Onboarding, TheLinkOpensThePageOfTokens)
{
    openSignedOut();

    click(find(QAccessible::Link, u"Créer un token API"_s));

    EXPECT_EQ(desktop->opened.value(0).path(), u"/manage-profile/security/api-tokens"_s);
}

TEST_F(Onboarding, TheFieldOfColoursMovesAtMostThirtyTimesASecond)
{
    openSignedOut();
    ASSERT_TRUE(mesh() && mesh()->isMoving());
    int frames = 0;
    QObject::connect(&window(), &QQuickWindow::frameSwapped, &window(), [&] { ++frames; });
    // The caret of the first field blinks. Without the focus, only the gradient causes frames.
    window().contentItem()->forceActiveFocus();
    frames = 0;
    QElapsedTimer timer;
    timer.start();

    ASSERT_TRUE(QTest::qWaitFor([&] { return frames == 15; }));
    EXPECT_GE(timer.elapsed(), 14 * 33);
}

TEST_F(Onboarding, TheFieldOfColoursStandsStillWhileTheWindowIsHidden)
{
    openSignedOut();
    ASSERT_TRUE(mesh() && mesh()->isMoving());

    window().hide();
    EXPECT_TRUE(QTest::qWaitFor([&] { return !mesh()->isMoving(); }));

    window().show();
    EXPECT_TRUE(QTest::qWaitFor([&] { return mesh()->isMoving(); }));
}

TEST_F(Onboarding, TheFieldOfColoursStandsStillWhereLessMotionIsWished)
{
    openSignedOut();

    desktop->setPrefersReducedMotion(true);

    EXPECT_FALSE(mesh()->isMoving());
}
