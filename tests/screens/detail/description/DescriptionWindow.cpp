#include "screens/detail/description/DescriptionWindow.h"

#include "richtext/ADFMarkdown.h"
#include "richtext/ADFQueries.h"

#include <QQmlContext>
#include <QQmlEngine>
#include <QTest>

using namespace Qt::StringLiterals;

DescriptionWindow::DescriptionWindow()
{
    startSession();
    bench.setToken("motion", "reduced", true);
}

DescriptionWindow::~DescriptionWindow()
{
    EXPECT_EQ(bench.warnings(), "");
}

Issue DescriptionWindow::described(const QString &markdown)
{
    Issue issue = sampleIssue(u"MOB-1"_s);
    issue.hasDetails = true;
    if (!markdown.isEmpty())
        issue.description = ADFMarkdown::document(markdown);
    return issue;
}

void DescriptionWindow::openUnknown()
{
    bench.window().engine()->rootContext()->setContextProperty(u"testStore"_s, store.get());
    page = bench.show(uR"(
        import Velmora.Detail
        import Velmora.State
        FocusScope {
            id: root
            property alias section: section
            property alias issue: open
            property int escapes: 0
            property string link
            property rect revealed
            function reveal(box) {
                revealed = box
                const y = section.y + box.y
                view.contentY = Math.max(0, Math.min(y, Math.max(view.contentY, y + box.height - view.height)))
            }
            width: 600
            height: 400
            focus: true
            Rectangle { anchors.fill: parent; color: Theme.content }
            Layer {
                item: root; isOpen: true; kind: Layer.Kind.Content
                onCloseRequested: root.escapes++
            }
            OpenIssue { id: open; store: testStore; key: "MOB-1" }
            PushButton { id: before; text: "Avant"; focus: true }
            Flickable {
                id: view
                y: 40
                width: parent.width
                height: 320
                clip: true
                contentHeight: section.height
                DescriptionSection {
                    id: section
                    x: 20
                    width: 560
                    height: implicitHeight
                    store: testStore
                    issue: open
                    room: view.height
                    onLinkActivated: address => root.link = address
                    onRevealRequested: box => root.reveal(box)
                }
            }
            PushButton { y: 366; text: "Après" }
        })"_s);
    ASSERT_NE(page, nullptr) << bench.warnings();
}

void DescriptionWindow::open(const Issue &issue)
{
    openUnknown();
    answer(issue);
    settle();
}

void DescriptionWindow::answer(const Issue &issue)
{
    service->issueCalls.last().finish(issue);
}

void DescriptionWindow::refresh(const Issue &issue)
{
    this->issue()->load();
    answer(issue);
    settle();
}

void DescriptionWindow::press(int key, Qt::KeyboardModifiers modifiers)
{
    QTest::keyClick(&bench.window(), Qt::Key(key), modifiers);
}

void DescriptionWindow::type(const QString &text)
{
    for (const QChar letter : text)
        QTest::sendKeyEvent(QTest::Click, &bench.window(), Qt::Key_unknown, QString(letter),
                            Qt::NoModifier);
}

bool DescriptionWindow::has(QAccessible::Role role, const QString &name)
{
    return !spokenIn(bench.window(), role, name).isEmpty();
}

Spoken DescriptionWindow::find(QAccessible::Role role, const QString &name)
{
    const auto found = spokenIn(bench.window(), role, name);
    EXPECT_EQ(found.size(), 1) << name.toStdString();
    return found.isEmpty() ? Spoken() : found.first();
}

void DescriptionWindow::click(QAccessible::Role role, const QString &name)
{
    settle();
    QTest::mouseClick(&bench.window(), Qt::LeftButton, {}, find(role, name).box.center());
    settle();
}

void DescriptionWindow::moveTo(const QPoint &place)
{
    QTest::mouseMove(&bench.window(), place);
    settle();
}

void DescriptionWindow::settle()
{
    bench.window().grabWindow();
    QCoreApplication::processEvents();
    bench.window().grabWindow();
}

void DescriptionWindow::edit()
{
    click(QAccessible::Button, has(QAccessible::Button, u"Modifier"_s)
                                   ? u"Modifier la description"_s
                                   : u"Ajouter une description…"_s);
    ASSERT_TRUE(isEditing());
}

QString DescriptionWindow::focusedName()
{
    auto *known = focused() ? Bench::accessible(focused()) : nullptr;
    return known ? known->text(QAccessible::Name) : QString();
}

QString DescriptionWindow::shown() const
{
    const auto issue = store->issue(u"MOB-1"_s);
    const auto document = issue ? (*issue)->description : std::nullopt;
    return document ? ADF::plainText(*document) : QString();
}
