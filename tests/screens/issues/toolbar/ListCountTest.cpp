#include "app/WindowFixture.h"
#include "model/JiraError.h"

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

class ListCount : public WindowFixture
{
protected:
    void SetUp() override
    {
        openOnDemo();
        serve({u"WEB-1"_s});
        reload();
    }
};

TEST_F(ListCount, SaysHowOldTheListIsWhileItCannotBeRefreshed)
{
    desktop->isActive = false;
    clock->advance(720s);
    service->issuesCalls.failWith(JiraError(JiraError::Http{500, u"Panne."_s}));
    store().refresh();
    const Spoken sign = await(QAccessible::StaticText, u"Liste pas à jour, il y a 12 min"_s);
    EXPECT_TRUE(sign.description.contains(u"Panne."_s));

    serve({u"WEB-1"_s});
    reload();
    EXPECT_TRUE(isGone(QAccessible::StaticText, u"Liste pas à jour"_s));
}

TEST_F(ListCount, SaysThatTheSiteCutTheList)
{
    service->limit = 1;
    serve({u"WEB-1"_s});
    reload();
    const Spoken count = await(QAccessible::StaticText, u"1 ticket"_s);
    EXPECT_EQ(count.description, u"La liste s'arrête aux 1 premiers tickets."_s);
}

} // namespace
