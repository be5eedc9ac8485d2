#include "screens/Bench.h"

#include <QImage>
#include <QSGNode>
#include <QTest>

#include <gtest/gtest.h>
#include <random>

using namespace Qt::StringLiterals;

namespace {

/// An item that finds the scene graph of its window.
class SceneProbe : public QQuickItem
{
public:
    explicit SceneProbe(QQuickItem *parent) : QQuickItem(parent)
    {
        setFlag(ItemHasContents);
        setSize({1, 1});
    }
    /// The number of nodes that draw something.
    int drawnNodes() const
    {
        const QSGNode *root = m_node;
        while (root->parent() != nullptr)
            root = root->parent();
        return drawnBelow(*root);
    }

protected:
    QSGNode *updatePaintNode(QSGNode *old, UpdatePaintNodeData *) override
    {
        m_node = old != nullptr ? old : std::make_unique<QSGNode>().release();
        return m_node;
    }

private:
    static int drawnBelow(const QSGNode &node)
    {
        int count = node.type() == QSGNode::GeometryNodeType ? 1 : 0;
        for (const auto *child = node.firstChild(); child != nullptr; child = child->nextSibling())
            count += drawnBelow(*child);
        return count;
    }

    QSGNode *m_node = nullptr;
};

QString lines(int count)
{
    QStringList all;
    for (int line = 0; line < count; ++line)
        all.append(u"Ligne %1 de la description"_s.arg(line));
    return all.join(u'\n');
}

} // namespace

/// A field beside a text area of Qt, which draws all lines. `compare` gives the second the state of the first.
class LongTextTest : public testing::Test
{
protected:
    void SetUp() override
    {
        auto *both = bench.show(uR"(import QtQuick.Templates as T
        Column {
            width: 200
            height: 721
            property alias field: field
            property alias view: view
            property alias area: area
            property alias elsewhere: elsewhere
            Item { id: elsewhere; width: 1; height: 1 }
            InputArea { id: field; name: 'Texte'; framed: false; width: 200; highest: 150 }
            Flickable {
                id: view
                width: field.width
                height: field.height
                clip: true
                T.TextArea.flickable: T.TextArea { id: area; wrapMode: TextEdit.Wrap; textFormat: TextEdit.PlainText }
            }
        })"_s);
        ASSERT_NE(both, nullptr) << bench.warnings();
        const auto part = [both](const char *name) {
            return both->property(name).value<QQuickItem *>();
        };
        field = part("field");
        view = part("view");
        area = part("area");
        elsewhere = part("elsewhere");
        editor = editorIn(*field);
        insert(0, lines(100));
    }
    void TearDown() override { EXPECT_EQ(bench.warnings(), ""); }

    static QQuickItem *editorIn(QQuickItem &item)
    {
        if (item.inherits("QQuickTextEdit"))
            return &item;
        for (auto *child : item.childItems()) {
            if (auto *found = editorIn(*child))
                return found;
        }
        return nullptr;
    }

    int length() const { return editor->property("length").toInt(); }
    /// A number from 0 to the limit, without the limit.
    int below(int limit) { return static_cast<int>(random() % static_cast<unsigned>(limit)); }
    void insert(int at, const QString &text)
    {
        QMetaObject::invokeMethod(editor, "insert", Q_ARG(int, at), Q_ARG(QString, text));
    }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {})
    {
        editor->forceActiveFocus();
        QTest::keyClick(&bench.window(), key, modifiers);
        elsewhere->forceActiveFocus();
    }
    void inRange(const char *method)
    {
        const int start = below(length() + 1);
        const int end = std::min(length(), start + below(300));
        QMetaObject::invokeMethod(editor, method, Q_ARG(int, start), Q_ARG(int, end));
    }
    void scroll(int by)
    {
        auto *own = editor->parentItem()->parentItem();
        const double end = std::max(0.0, own->property("contentHeight").toDouble() - own->height());
        own->setProperty("contentY",
                         std::clamp(own->property("contentY").toDouble() + by, 0.0, end));
    }
    void changeSomething()
    {
        const std::array<std::function<void()>, 13> changes{
            [&] { insert(below(length() + 1), u"Encore\nune longue ligne qui est coupée\n\n"_s); },
            [&] { inRange("remove"); },
            [&] { inRange("select"); },
            [&] { editor->setProperty("cursorPosition", below(length() + 1)); },
            [&] { press(Qt::Key_Z, Qt::ControlModifier); },
            [&] { press(Qt::Key_E); },
            [&] { press(Qt::Key_Return); },
            [&] { press(Qt::Key_Backspace); },
            [&] { press(below(2) == 0 ? Qt::Key_PageDown : Qt::Key_PageUp); },
            [&] { scroll(below(800) - 400); },
            [&] { scroll(below(40) - 20); },
            [&] { field->setProperty("highest", 60 + below(130)); },
            [&] { field->setWidth(100 + below(100)); },
        };
        changes[static_cast<std::size_t>(below(changes.size()))]();
    }
    /// Whether both draw the same.
    bool compare()
    {
        // The first frame is drawn as in the program, without anything that happens for the comparison.
        bench.window().grabWindow();
        for (const char *name : {"font", "color", "selectionColor", "selectedTextColor",
                                 "topPadding", "bottomPadding", "leftPadding", "rightPadding"})
            area->setProperty(name, editor->property(name));
        area->setProperty("text", QString());
        area->setProperty("text", editor->property("text"));
        QMetaObject::invokeMethod(area, "select",
                                  Q_ARG(int, editor->property("selectionStart").toInt()),
                                  Q_ARG(int, editor->property("selectionEnd").toInt()));
        const auto *own = editor->parentItem()->parentItem();
        view->setProperty("contentY", own->property("contentY"));
        const auto picture = bench.window().grabWindow();
        const auto of = [&](const QQuickItem *item) {
            return picture.copy(item->mapRectToScene(item->boundingRect()).toRect());
        };
        return of(field) == of(view);
    }

    Bench bench;
    std::mt19937 random{3};
    QQuickItem *field = nullptr;
    QQuickItem *editor = nullptr;
    QQuickItem *view = nullptr;
    QQuickItem *area = nullptr;
    QQuickItem *elsewhere = nullptr;
};

TEST_F(LongTextTest, OnlyTheLinesInViewAreDrawn)
{
    SceneProbe probe(bench.window().contentItem());
    bench.window().grabWindow();
    const int before = probe.drawnNodes();
    insert(length() / 2, lines(1000));
    bench.window().grabWindow();
    EXPECT_LT(std::abs(probe.drawnNodes() - before), 5);
}

TEST_F(LongTextTest, TheFieldLooksLikeATextThatIsDrawnInFull)
{
    for (const int padding : {0, 20}) {
        editor->setProperty("topPadding", padding);
        editor->setProperty("bottomPadding", padding);
        for (int turn = 0; turn < 100; ++turn) {
            changeSomething();
            ASSERT_TRUE(compare()) << padding << ' ' << turn;
        }
    }
}
