#include "app/WindowFixture.h"
#include "model/JiraError.h"

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

/// What the main window shows when the program ends while a change is still being sent.
class FarewellWindow : public WindowFixture
{
protected:
    void SetUp() override
    {
        openOnDemo();
        serve({u"WEB-1"_s, u"WEB-2"_s});
        reload();
        store().rename(u"WEB-1"_s, u"Titre neuf"_s);
        app->quit(Farewell::Reason::User);
        clock->advance(1s);
        await(QAccessible::Dialog, u"Enregistrement en cours…"_s);
    }
};

TEST_F(FarewellWindow, EscapeStaysAndTheListHasTheKeyboardAgain)
{
    press(Qt::Key_Escape);
    EXPECT_TRUE(isGone(QAccessible::Dialog, u"Enregistrement en cours…"_s));
    press(Qt::Key_J);
    EXPECT_EQ(store().focusedKey(), u"WEB-1"_s);
}

TEST_F(FarewellWindow, ReturnStaysBecauseItIsTheDefault)
{
    press(Qt::Key_Return);
    EXPECT_TRUE(isGone(QAccessible::Dialog, u"Enregistrement en cours…"_s));
    EXPECT_FALSE(store().focusedKey());
}

TEST_F(FarewellWindow, KeysDoNotReachTheListBelow)
{
    press(Qt::Key_J);
    EXPECT_FALSE(store().focusedKey());
}

TEST_F(FarewellWindow, ItGoesWhenTheChangeIsStored)
{
    service->updateCalls[0].finish();
    EXPECT_TRUE(isGone(QAccessible::Dialog, u"Enregistrement en cours…"_s));
}

TEST_F(FarewellWindow, ARefusalIsReadInIt)
{
    service->updateCalls[0].fail(JiraError(JiraError::Http{500, u"Panne."_s}));
    await(QAccessible::Dialog, u"Modification refusée"_s);
    await(QAccessible::StaticText, u"Panne."_s);
    click(find(QAccessible::Button, u"Rester"_s));
    EXPECT_TRUE(isGone(QAccessible::Dialog, u"Modification refusée"_s));
}

} // namespace
