#include "screens/kit/overlays/OpenPopups.h"

#include "screens/Bench.h"

#include <QTest>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

class OpenPopupsTest : public testing::Test
{
protected:
    OpenPopupsTest()
    {
        m_holder = m_bench.show(
            u"Item { property alias button: button; property alias popover: popover; "
            "property alias menu: menu; property alias sheet: sheet; width: 600; height: 400; "
            "PushButton { id: button; text: 'Statut'; focus: true } "
            "Popover { id: popover; name: 'Statut'; InputField { name: 'Chercher'; focus: true } } "
            "PopupMenu { id: menu; PopupMenuItem { text: 'Backlog' } } "
            "Sheet { id: sheet; name: 'Nouveau ticket'; Item { width: 300; height: 100 } } }"_s);
        EXPECT_NE(m_holder, nullptr) << m_bench.warnings();
    }
    void TearDown() override { EXPECT_EQ(m_bench.warnings(), ""); }

    QObject *part(const char *name) { return m_holder->property(name).value<QObject *>(); }
    bool isOpen(const char *name) { return part(name)->property("visible").toBool(); }
    void open(const char *name)
    {
        QMetaObject::invokeMethod(part(name), "open");
        ASSERT_TRUE(QTest::qWaitFor([&] { return part(name)->property("opened").toBool(); }));
    }
    void close() { OpenPopups::close(m_bench.window()); }

private:
    Bench m_bench;
    QQuickItem *m_holder = nullptr;
};

TEST_F(OpenPopupsTest, WhatLiesOneOverTheOtherGoesAndTheFocusIsBackAtOnce)
{
    open("popover");
    open("menu");
    close();

    EXPECT_TRUE(part("button")->property("activeFocus").toBool());
    EXPECT_TRUE(QTest::qWaitFor([&] { return !isOpen("popover") && !isOpen("menu"); }));
    EXPECT_TRUE(part("button")->property("activeFocus").toBool());
}

TEST_F(OpenPopupsTest, ASheetStays)
{
    open("sheet");
    close();

    EXPECT_TRUE(part("sheet")->property("opened").toBool());
}

TEST_F(OpenPopupsTest, WithNothingOpenNothingHappens)
{
    close();

    EXPECT_TRUE(part("button")->property("activeFocus").toBool());
}
