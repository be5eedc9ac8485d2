#include "app/WindowFixture.h"
#include "richtext/ADFQueries.h"

#include <QTest>

using namespace Qt::StringLiterals;

class CreateSheetTexts : public WindowFixture
{
};

TEST_F(CreateSheetTexts, TheSheetForANewIssueKeepsNoBreakSpacesAndTheCaret)
{
    serve({u"MOB-1"_s});
    openOnDemo();
    desktop->setPrefersReducedMotion(true);
    service->createCalls.hold();
    settle();
    press(Qt::Key_C);
    await(QAccessible::EditableText, u"Titre du ticket"_s);
    type(u"Prix\u00a0: 3"_s);
    press(Qt::Key_Tab);
    type(u"Vu\u00a0!"_s);
    press(Qt::Key_Return, Qt::ControlModifier);
    ASSERT_EQ(service->createCalls.count(), 1);
    const IssueDraft &sent = service->createCalls.last().argument();
    EXPECT_EQ(sent.summary, u"Prix\u00a0: 3"_s);
    ASSERT_TRUE(sent.description);
    EXPECT_EQ(ADF::plainText(*sent.description).trimmed(), u"Vu\u00a0!"_s);
}
