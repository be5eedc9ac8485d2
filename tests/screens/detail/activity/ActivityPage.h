#pragma once

#include "screens/Bench.h"
#include "screens/detail/activity/ActivityFixture.h"

#include <QTest>

/// A window with the activity of SUP-41 in a view that scrolls.
class ActivityPage : public ActivityFixture
{
protected:
    static constexpr auto qml = R"(
    import Velmora.Detail
    import Velmora.Documents
    import Velmora.State
    FocusScope {
        id: root
        property AppStore store: null
        property string key: "SUP-41"
        // The height of the files below each comment that refers to files; -1 without a component for them.
        property int filesHeight: -1
        property bool showsMedia: false
        property string link
        property rect revealed
        property alias view: view
        width: 532
        height: 700
        focus: true
        Component {
            id: mediaItem
            Item {
                required property mediaBlock block
                objectName: 'media'
                implicitHeight: 90
            }
        }
        Component {
            id: filesItem
            Item {
                required property string commentID
                objectName: 'files of ' + commentID
                implicitHeight: root.filesHeight
            }
        }
        Layer { item: root; isOpen: true; kind: Layer.Kind.Content; closesOnEscape: false }
        Rectangle { anchors.fill: parent; color: Theme.inspector }
        PushButton { id: before; text: "Avant"; focus: true }
        Flickable {
            id: view
            y: 40
            width: parent.width
            height: parent.height - y
            clip: true
            contentHeight: contentItem.childrenRect.height
            When {
                shown: root.store !== null
                ActivitySection {
                    id: section
                    x: 24
                    width: view.width - 48
                    store: root.store
                    issue: OpenIssue { store: root.store; key: root.key }
                    mediaDelegate: root.showsMedia ? mediaItem : null
                    strip: root.filesHeight >= 0 ? filesItem : null
                    onLinkActivated: address => root.link = address
                    onRevealRequested: box => root.revealed = box
                }
            }
        }
    }
    )";

    ActivityPage()
    {
        page = bench.show(QString::fromUtf8(qml));
        ;
        EXPECT_NE(page, nullptr) << bench.warnings();
        bench.window().resize(532, 700);
    }
    ~ActivityPage() override
    {
        page->setProperty("store", QVariant::fromValue<AppStore *>(nullptr));
        EXPECT_EQ(bench.warnings(), "");
    }

    void open()
    {
        page->setProperty("store", QVariant::fromValue(store.get()));
        frame();
    }
    QImage frame() { return bench.window().grabWindow(); }
    void press(int key, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::keyClick(&bench.window(), Qt::Key(key), modifiers);
    }
    void click(const QString &name)
    {
        auto *item = named(name);
        ASSERT_NE(item, nullptr) << name.toStdString();
        frame();
        const QPointF centre(item->width() / 2, item->height() / 2);
        QTest::mouseClick(&bench.window(), Qt::LeftButton, {}, item->mapToScene(centre).toPoint());
    }
    /// Tab, until the item with the focus is called so. False if none is.
    bool tabTo(const QString &name)
    {
        for (int i = 0; i < 20 && focused() != name; ++i)
            press(Qt::Key_Tab);
        return focused() == name;
    }
    /// What the item with the focus is called.
    QString focused()
    {
        auto *item = bench.window().activeFocusItem();
        return item ? nameOf(item) : QString();
    }
    QQuickItem *named(const QString &name) { return named(bench.window().contentItem(), name); }
    static QString nameOf(QQuickItem *item)
    {
        auto *known = Bench::accessible(item);
        return known ? known->text(QAccessible::Name) : QString();
    }
    /// The bubbles in their order.
    QList<QQuickItem *> bubbles()
    {
        QList<QQuickItem *> found;
        collect(bench.window().contentItem(), found);
        return found;
    }

    static QQuickItem *part(QQuickItem *item, const QString &objectName)
    {
        if (item->objectName() == objectName)
            return item;
        for (auto *child : item->childItems()) {
            if (auto *found = part(child, objectName))
                return found;
        }
        return nullptr;
    }
    static QQuickItem *named(QQuickItem *item, const QString &name)
    {
        if (!item->isVisible())
            return nullptr;
        if (nameOf(item) == name)
            return item;
        for (auto *child : item->childItems()) {
            if (auto *found = named(child, name))
                return found;
        }
        return nullptr;
    }
    Bench bench;
    QQuickItem *page = nullptr;

private:
    static void collect(QQuickItem *item, QList<QQuickItem *> &found)
    {
        auto *known = Bench::accessible(item);
        if (known && known->role() == QAccessible::ListItem)
            found.append(item);
        for (auto *child : item->childItems())
            collect(child, found);
    }
};
