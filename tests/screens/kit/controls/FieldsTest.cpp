#include "screens/Bench.h"

#include <QQuickItem>
#include <QTest>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

QQuickItem *findBelow(QQuickItem *item, const char *type)
{
    if (item->inherits(type))
        return item;
    for (auto *child : item->childItems()) {
        if (auto *found = findBelow(child, type))
            return found;
    }
    return nullptr;
}

QQuickItem *withText(const QQuickItem *parent, const QString &text)
{
    for (auto *child : parent->childItems()) {
        if (child->property("text").toString() == text)
            return child;
    }
    return nullptr;
}

QString lines(int count)
{
    return QStringList(count, u"Une ligne"_s).join(u'\n');
}

/// The colour of the left edge at half the height.
QColor edgeOf(Bench &bench, const QQuickItem *item)
{
    const QImage picture = bench.window().grabWindow();
    const QPointF at = item->mapToScene({0, item->height() / 2}) * picture.devicePixelRatio();
    return picture.pixelColor(at.toPoint());
}

} // namespace

class InputAreaTest : public testing::Test
{
protected:
    // Shows the area between two other fields, as in a form.
    void show(const QString &properties = {})
    {
        m_form = m_bench.show(
            u"Column { property alias area: a; width: 300; InputField { name: 'Avant' } "
            "InputArea { id: a; name: 'Description'; placeholderText: 'Décris le ticket'; %1 } "
            "InputField { name: 'Après' } }"_s.arg(properties));
        ASSERT_NE(m_form, nullptr) << m_bench.warnings();
        m_area = m_form->property("area").value<QQuickItem *>();
        m_editor = findBelow(m_area, "QQuickTextArea");
        ASSERT_NE(m_editor, nullptr);
        m_editor->forceActiveFocus(Qt::TabFocusReason);
    }
    void TearDown() override { EXPECT_EQ(m_bench.warnings(), ""); }

    QString text() const { return m_area->property("text").toString(); }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::keyClick(&m_bench.window(), key, modifiers);
    }
    QString focusedName()
    {
        return Bench::accessible(m_bench.window().activeFocusItem())->text(QAccessible::Name);
    }

    Bench m_bench;
    QQuickItem *m_form = nullptr;
    QQuickItem *m_area = nullptr;
    QQuickItem *m_editor = nullptr;
};

TEST_F(InputAreaTest, GrowsWithItsTextBetweenItsTwoHeights)
{
    show();
    EXPECT_DOUBLE_EQ(m_area->implicitHeight(), 76);
    m_area->setProperty("text", lines(7));
    const qreal seven = m_area->implicitHeight();
    EXPECT_GT(seven, 76);
    EXPECT_LT(seven, 240);
    m_area->setProperty("text", lines(8));
    EXPECT_GT(m_area->implicitHeight(), seven + 10);
    m_area->setProperty("text", lines(60));
    EXPECT_DOUBLE_EQ(m_area->implicitHeight(), 240);
    m_area->setProperty("text", QString());
    EXPECT_DOUBLE_EQ(m_area->implicitHeight(), 76);
}

TEST_F(InputAreaTest, GrowsWithALineThatWraps)
{
    show();
    m_area->setProperty("text", u"Une phrase qui se répète. "_s.repeated(20));
    EXPECT_GT(m_area->implicitHeight(), 120);
}

TEST_F(InputAreaTest, ScrollsToTheCaretOnceItIsAsHighAsItMayBe)
{
    show();
    auto *view = findBelow(m_area, "QQuickFlickable");
    m_area->setProperty("text", lines(60));
    EXPECT_TRUE(view->property("interactive").toBool());
    press(Qt::Key_End, Qt::ControlModifier);
    EXPECT_GT(view->property("contentY").toReal(), 500);
    press(Qt::Key_Home, Qt::ControlModifier);
    EXPECT_DOUBLE_EQ(view->property("contentY").toReal(), 0);
}

TEST_F(InputAreaTest, ADragSelectsAndScrollsNothing)
{
    show();
    m_area->setProperty("text", lines(60));
    m_bench.window().grabWindow();
    const auto at = [this](int x, int y) { return m_area->mapToScene(QPointF(x, y)).toPoint(); };
    QTest::mousePress(&m_bench.window(), Qt::LeftButton, {}, at(12, 12));
    for (int y = 30; y <= 110; y += 20)
        QTest::mouseMove(&m_bench.window(), at(40, y));
    QTest::mouseRelease(&m_bench.window(), Qt::LeftButton, {}, at(40, 110));
    EXPECT_GT(m_editor->property("selectedText").toString().size(), 20);
    EXPECT_DOUBLE_EQ(findBelow(m_area, "QQuickFlickable")->property("contentY").toReal(), 0);
}

class ScrolledPage : public testing::Test
{
protected:
    // Shows a page that is higher than the window, with an input area at its top.
    void show(int lineCount)
    {
        m_page = m_bench.show(u"Flickable { property alias area: a; width: 600; height: 400; "
                              "contentHeight: 1200; InputArea { id: a; name: 'Description' } }"_s);
        ASSERT_NE(m_page, nullptr) << m_bench.warnings();
        auto *area = m_page->property("area").value<QQuickItem *>();
        area->setProperty("text", lines(lineCount));
        m_view = findBelow(area, "QQuickFlickable");
        m_bench.window().grabWindow();
    }
    void TearDown() override { EXPECT_EQ(m_bench.warnings(), ""); }

    /// Scrolls over the area with a touchpad, in four steps.
    void scroll(int pixels)
    {
        send(0, Qt::ScrollBegin);
        for (int i = 0; i < 4; ++i)
            send(pixels / 4, Qt::ScrollUpdate);
        send(0, Qt::ScrollEnd);
    }
    void send(int pixels, Qt::ScrollPhase phase)
    {
        const QPointF at(50, 30);
        QWheelEvent event(at, m_bench.window().mapToGlobal(at), {0, -pixels}, {0, -pixels},
                          Qt::NoButton, Qt::NoModifier, phase, false,
                          Qt::MouseEventSynthesizedBySystem);
        event.setTimestamp(m_time += 16);
        QCoreApplication::sendEvent(&m_bench.window(), &event);
    }
    static qreal placeOf(const QQuickItem *flickable)
    {
        return flickable->property("contentY").toReal();
    }

    Bench m_bench;
    QQuickItem *m_page = nullptr;
    QQuickItem *m_view = nullptr;
    quint64 m_time = 1000;
};

TEST_F(ScrolledPage, TheWheelScrollsALongTextAndNotThePage)
{
    show(60);
    scroll(160);
    EXPECT_GT(placeOf(m_view), 30);
    EXPECT_DOUBLE_EQ(placeOf(m_page), 0);
}

TEST_F(ScrolledPage, TheWheelScrollsThePageWhileAllOfTheTextIsSeen)
{
    show(2);
    scroll(160);
    EXPECT_GT(placeOf(m_page), 30);
    EXPECT_DOUBLE_EQ(placeOf(m_view), 0);
}

TEST_F(InputAreaTest, TabAndShiftTabLeaveItAndTypeNothing)
{
    show();
    press(Qt::Key_Tab);
    EXPECT_EQ(focusedName(), u"Après"_s);
    press(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(focusedName(), u"Description"_s);
    press(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(focusedName(), u"Avant"_s);
    EXPECT_EQ(text(), QString());
}

TEST_F(InputAreaTest, ReturnBeginsALineAndWithACommandKeyIsLeftToTheScreen)
{
    show();
    press(Qt::Key_A);
    press(Qt::Key_Return);
    press(Qt::Key_B);
    EXPECT_EQ(text(), u"a\nb"_s);
    press(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(text(), u"a\nb"_s);
}

TEST_F(InputAreaTest, SaysItsNameItsProblemAndThatItHasLines)
{
    show(u"problem: 'La description est trop longue.'"_s);
    auto *accessible = Bench::accessible(m_editor);
    EXPECT_EQ(accessible->role(), QAccessible::EditableText);
    EXPECT_EQ(accessible->text(QAccessible::Name), u"Description"_s);
    EXPECT_EQ(accessible->text(QAccessible::Description), u"La description est trop longue."_s);
    EXPECT_TRUE(accessible->state().multiLine);
    EXPECT_TRUE(accessible->state().focused);
}

TEST_F(InputAreaTest, DisabledItTakesNoKeys)
{
    show(u"enabled: false"_s);
    press(Qt::Key_A);
    EXPECT_EQ(text(), QString());
}

TEST_F(InputAreaTest, PlaceholderIsThereOnlyWhileItIsEmpty)
{
    show();
    const auto *placeholder = withText(m_editor, u"Décris le ticket"_s);
    ASSERT_NE(placeholder, nullptr);
    EXPECT_TRUE(placeholder->isVisible());
    press(Qt::Key_A);
    EXPECT_FALSE(placeholder->isVisible());
}

TEST(Fields, AProblemTurnsTheLineRedAndIsSpoken)
{
    for (const auto &type : {u"InputField"_s, u"SearchField"_s, u"SecureField"_s}) {
        Bench bench;
        auto *field = bench.show(type + u" { x: 20; y: 20; name: 'Adresse' }"_s);
        ASSERT_NE(field, nullptr) << bench.warnings();
        const QColor fine = edgeOf(bench, field);
        field->setProperty("problem", u"L'adresse est vide."_s);
        const QColor wrong = edgeOf(bench, field);
        EXPECT_GT(wrong.red() - wrong.blue(), fine.red() - fine.blue() + 50) << type.toStdString();
        EXPECT_TRUE(Bench::accessible(field)
                        ->text(QAccessible::Description)
                        .endsWith(u"L'adresse est vide."_s));
        EXPECT_EQ(bench.warnings(), "");
    }
}

TEST(Fields, AScreenReaderThatStartsLaterHearsTheProblemToo)
{
    for (const auto &type : {u"InputField"_s, u"SecureField"_s, u"InputArea"_s}) {
        Bench bench;
        QAccessible::setActive(false);
        auto *field = bench.show(
            type + u" { name: 'Adresse'; placeholderText: 'exemple.fr'; focus: true }"_s);
        ASSERT_NE(field, nullptr) << bench.warnings();
        field->setProperty("problem", u"L'adresse est vide."_s);
        QAccessible::setActive(true);
        const auto spoken = [&] {
            return Bench::accessible(bench.window().activeFocusItem())
                ->text(QAccessible::Description);
        };
        EXPECT_EQ(spoken(), u"L'adresse est vide."_s) << type.toStdString();
        field->setProperty("problem", u"L'adresse est trop longue."_s);
        EXPECT_EQ(spoken(), u"L'adresse est trop longue."_s) << type.toStdString();
        EXPECT_EQ(bench.warnings(), "");
    }
}

TEST(CheckBox, IsTurnedOverByAPressOnItsWords)
{
    Bench bench;
    auto *box = bench.show(u"CheckBox { text: 'Ticket interne' }"_s);
    QTest::mouseClick(&bench.window(), Qt::LeftButton, {},
                      QPoint(static_cast<int>(box->width()) - 10, 10));
    EXPECT_TRUE(box->property("checked").toBool());
    EXPECT_TRUE(Bench::accessible(box)->state().checked);
    QTest::keyClick(&bench.window(), Qt::Key_Tab);
    QTest::keyClick(&bench.window(), Qt::Key_Space);
    EXPECT_FALSE(box->property("checked").toBool());
    EXPECT_EQ(bench.warnings(), "");
}

TEST(CheckBox, WrapsWhereItsWidthIsSet)
{
    Bench bench;
    auto *box = bench.show(
        u"CheckBox { width: 120; text: 'Prévenir les personnes mentionnées dans ce ticket' }"_s);
    ASSERT_NE(box, nullptr) << bench.warnings();
    EXPECT_GE(box->height(), 22 + 18);
    EXPECT_EQ(bench.warnings(), "");
}
