#include "screens/kit/layers/WindowLayers.h"

#include "screens/Bench.h"

#include <QTest>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// Consumes some keys, and records every press that it was offered.
class RecordingHandler : public KeyHandler
{
public:
    bool takes(const QKeyEvent &press) override
    {
        offered += press.key();
        return consumed.contains(press.key());
    }
    bool repeats(const QKeyEvent &press) const override { return press.key() == Qt::Key_J; }

    QList<int> offered;
    QList<int> consumed;
};

const QString content = uR"(FocusScope {
    id: root
    property alias button: button
    property alias field: field
    property alias reading: reading
    property alias popover: popover
    property alias inner: inner
    property alias title: title
    property alias menu: menu
    property alias sheet: sheet
    property int clicks: 0
    width: 600
    height: 400
    focus: true

    Layer { item: root; isOpen: true; kind: Layer.Kind.Content; closesOnEscape: false }
    KeyMonitorModifier { objectName: "contentMonitor"; handler: null }
    PushButton { id: button; text: "Statut"; focus: true; onClicked: root.clicks += 1 }
    InputField { id: field; y: 60; name: "Filtrer" }
    TextEdit { id: reading; y: 100; readOnly: true; activeFocusOnTab: true; text: "Lu" }
    Popover {
        id: popover
        name: "Statut"
        KeyMonitorModifier { objectName: "popoverMonitor"; handler: null }
        InputField { id: inner; name: "Chercher"; focus: true }
    }
    PopupMenu { id: menu; PopupMenuItem { text: "Backlog" } }
    Sheet { id: sheet; name: "Nouveau ticket"; Item { width: 300; height: 100; InputField { id: title; name: "Titre" } } }
})"_s;

} // namespace

class WindowLayersTest : public testing::Test
{
protected:
    WindowLayersTest()
    {
        m_holder = m_bench.show(content);
        EXPECT_NE(m_holder, nullptr) << m_bench.warnings();
        setHandler(u"contentMonitor"_s, &below);
    }
    void TearDown() override { EXPECT_EQ(m_bench.warnings(), ""); }

    WindowLayers &layers() { return WindowLayers::of(m_bench.window()); }
    QQuickWindow &window() { return m_bench.window(); }
    QObject *part(const char *name) { return m_holder->property(name).value<QObject *>(); }
    QQuickItem *item(const char *name) { return qobject_cast<QQuickItem *>(part(name)); }
    int clicks() { return m_holder->property("clicks").toInt(); }
    bool isOpen(const char *name) { return part(name)->property("visible").toBool(); }
    void open(const char *name)
    {
        QMetaObject::invokeMethod(part(name), "open");
        ASSERT_TRUE(QTest::qWaitFor([&] { return part(name)->property("opened").toBool(); }));
    }
    void setHandler(const QString &monitor, KeyHandler *handler)
    {
        auto *found = monitorCalled(window().contentItem(), monitor);
        ASSERT_NE(found, nullptr) << monitor.toStdString();
        found->setProperty("handler", QVariant::fromValue(handler));
    }
    void press(Qt::Key key, const QString &text = {}) { send(key, text, false); }
    void repeat(Qt::Key key, const QString &text = {}) { send(key, text, true); }

    RecordingHandler below;
    RecordingHandler above;

private:
    static KeyMonitorModifier *monitorCalled(QQuickItem *under, const QString &name)
    {
        if (under->objectName() == name)
            return qobject_cast<KeyMonitorModifier *>(under);
        for (auto *child : under->childItems()) {
            if (auto *found = monitorCalled(child, name))
                return found;
        }
        return nullptr;
    }
    void send(Qt::Key key, const QString &text, bool isRepeated)
    {
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier, text, isRepeated);
        QCoreApplication::sendEvent(&window(), &event);
    }

    Bench m_bench;
    QQuickItem *m_holder = nullptr;
};

TEST_F(WindowLayersTest, ARequestClosesAllLayersAndTheFocusIsBackAtOnce)
{
    open("popover");
    open("menu");
    layers().requestCloseAll();

    EXPECT_TRUE(item("button")->hasActiveFocus());
    EXPECT_TRUE(QTest::qWaitFor([&] { return !isOpen("popover") && !isOpen("menu"); }));
    EXPECT_TRUE(item("button")->hasActiveFocus());
}

TEST_F(WindowLayersTest, ARequestLeavesASheetOpenAndWhatIsBelowIt)
{
    open("popover");
    open("sheet");
    layers().requestCloseAll();

    EXPECT_TRUE(part("sheet")->property("opened").toBool());
    EXPECT_TRUE(part("popover")->property("opened").toBool());
}

TEST_F(WindowLayersTest, WithNothingOpenARequestDoesNothing)
{
    layers().requestCloseAll();

    EXPECT_TRUE(item("button")->hasActiveFocus());
}

TEST_F(WindowLayersTest, OnlyTheTopmostLayerReceivesKeys)
{
    above.consumed = {Qt::Key_X};
    below.consumed = {Qt::Key_X};
    open("popover");
    setHandler(u"popoverMonitor"_s, &above);
    press(Qt::Key_X, u"x"_s);
    press(Qt::Key_Y, u"y"_s);
    EXPECT_EQ(above.offered, QList<int>({Qt::Key_X, Qt::Key_Y}));
    EXPECT_TRUE(below.offered.isEmpty());
    EXPECT_EQ(part("inner")->property("text"), u"y"_s);

    open("menu");
    press(Qt::Key_X);
    EXPECT_EQ(above.offered.size(), 2) << "the menu is on top";
}

TEST_F(WindowLayersTest, EscapeClosesTheTopmostLayerAndThenTheNextOne)
{
    open("popover");
    open("menu");
    press(Qt::Key_Escape);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !isOpen("menu"); }));
    EXPECT_TRUE(isOpen("popover"));
    EXPECT_TRUE(item("inner")->hasActiveFocus());

    press(Qt::Key_Escape);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !isOpen("popover"); }));
    EXPECT_TRUE(item("button")->hasActiveFocus());
}

TEST_F(WindowLayersTest, AFocusThatHasLeftTheTopmostLayerReturnsBeforeTheKeyIsTyped)
{
    open("popover");
    item("field")->forceActiveFocus();
    press(Qt::Key_Y, u"y"_s);

    EXPECT_EQ(part("inner")->property("text"), u"y"_s);
    EXPECT_EQ(part("field")->property("text"), QString());
}

TEST_F(WindowLayersTest, ALayerBelowTheTopmostClosesAndTheFocusReturnsToWhereItBegan)
{
    open("popover");
    open("menu");
    QMetaObject::invokeMethod(part("popover"), "close");
    ASSERT_TRUE(QTest::qWaitFor([&] { return !isOpen("popover"); }));
    press(Qt::Key_Escape);

    EXPECT_TRUE(QTest::qWaitFor([&] { return !isOpen("menu"); }));
    EXPECT_TRUE(item("button")->hasActiveFocus());
}

TEST_F(WindowLayersTest, AHeldKeyThatWasConsumedWorksOnceUnlessItMoves)
{
    below.consumed = {Qt::Key_X, Qt::Key_J};
    press(Qt::Key_X, u"x"_s);
    repeat(Qt::Key_X, u"x"_s);
    EXPECT_EQ(below.offered, QList<int>{Qt::Key_X});

    press(Qt::Key_J, u"j"_s);
    repeat(Qt::Key_J, u"j"_s);
    repeat(Qt::Key_J, u"j"_s);
    EXPECT_EQ(below.offered.count(Qt::Key_J), 3);
}

TEST_F(WindowLayersTest, AHeldKeyThatClosesALayerDoesNotGoOnInTheOneBelow)
{
    open("popover");
    press(Qt::Key_Escape);
    repeat(Qt::Key_Escape);
    EXPECT_TRUE(below.offered.isEmpty());

    press(Qt::Key_Escape);
    EXPECT_EQ(below.offered, QList<int>{Qt::Key_Escape});
}

TEST_F(WindowLayersTest, AHeldReturnPressesAButtonOnce)
{
    press(Qt::Key_Return);
    for (int i = 0; i < 5; ++i)
        repeat(Qt::Key_Return);

    EXPECT_EQ(clicks(), 1);
}

TEST_F(WindowLayersTest, AHeldLetterIsTypedAgainAndAgain)
{
    item("field")->forceActiveFocus();
    press(Qt::Key_Y, u"y"_s);
    repeat(Qt::Key_Y, u"y"_s);
    repeat(Qt::Key_Y, u"y"_s);

    EXPECT_EQ(part("field")->property("text"), u"yyy"_s);
}

TEST_F(WindowLayersTest, OnlyATextThatCanBeChangedCountsAsTyping)
{
    EXPECT_FALSE(layers().isTyping());
    item("reading")->forceActiveFocus();
    EXPECT_FALSE(layers().isTyping());
    item("field")->forceActiveFocus();
    EXPECT_TRUE(layers().isTyping());
}

TEST_F(WindowLayersTest, APressBesideAPopoverOnlyClosesIt)
{
    open("popover");
    QTest::mouseClick(&window(), Qt::LeftButton, {}, QPoint(590, 10));
    EXPECT_TRUE(QTest::qWaitFor([&] { return !isOpen("popover"); }));

    open("popover");
    const auto place = item("button")->mapToScene({5, 5}).toPoint();
    QTest::mouseClick(&window(), Qt::LeftButton, {}, place);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !isOpen("popover"); }));
    EXPECT_EQ(clicks(), 0) << "the press reached the button below";
}

TEST_F(WindowLayersTest, APressOnALayerThatFadesOutDoesNotTakeTheFocusBackIntoIt)
{
    struct Case
    {
        const char *layer;
        const char *field;
    };
    for (const Case &tried : {Case{"popover", "inner"}, Case{"sheet", "title"}}) {
        SCOPED_TRACE(tried.layer);
        open(tried.layer);
        const auto place = item(tried.field)->mapToScene({10, 10}).toPoint();
        QMetaObject::invokeMethod(part(tried.layer), "close");
        ASSERT_TRUE(isOpen(tried.layer)) << "it fades out";

        QTest::mouseClick(&window(), Qt::LeftButton, {}, place);

        EXPECT_FALSE(item(tried.field)->hasActiveFocus());
        press(Qt::Key_J, u"j"_s);
        EXPECT_EQ(part(tried.field)->property("text"), QString());
        EXPECT_TRUE(QTest::qWaitFor([&] { return !isOpen(tried.layer); }));
        EXPECT_TRUE(item("button")->hasActiveFocus());
    }
}
