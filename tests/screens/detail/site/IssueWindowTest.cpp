#include "screens/detail/site/SiteWindow.h"

#include <QTest>

using namespace Qt::StringLiterals;

/// An issue of the service project in a window of its own.
class OwnIssueWindow : public SiteWindow
{
protected:
    OwnIssueWindow()
    {
        open();
        const QString key = keysOf(u"AIDE"_s).first();
        Q_EMIT store().openWindowRequested(key);
        EXPECT_TRUE(QTest::qWaitFor([&] { return ownWindow(key) != nullptr; }, patience));
        use(*ownWindow(key));
        await(QAccessible::EditableText, u"Commentaire"_s);
    }
};

TEST_F(OwnIssueWindow, AToastDoesNotCoverTheBoxForComments)
{
    store().toast(u"Commentaire envoyé"_s, u"checkmark.circle.fill"_s);
    const Spoken toast = await(QAccessible::Notification, u"Commentaire envoyé"_s);
    const Spoken box = find(QAccessible::Grouping, u"Nouveau commentaire"_s);
    ASSERT_FALSE(box.box.isEmpty());
    EXPECT_LT(toast.box.bottom(), box.box.top());
}
