#include "screens/detail/site/IssueWalk.h"

#include "richtext/ADFQueries.h"
#include "screens/detail/site/PressTarget.h"

#include <QFile>
#include <QJsonDocument>
#include <QMimeData>
#include <QRegularExpression>
#include <QTest>

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr QSize SmallestMain(940, 580);

bool isCalled(QAccessibleInterface &node, const QString &name)
{
    return QRegularExpression(name).match(node.text(QAccessible::Name)).hasMatch();
}

QAccessibleInterface *nodeOf(QAccessibleInterface *node, QAccessible::Role role,
                             const QString &name)
{
    if (!node || node->state().invisible)
        return nullptr;
    if (node->role() == role && isCalled(*node, name))
        return node;
    for (int i = 0; i < node->childCount(); ++i) {
        if (auto *found = nodeOf(node->child(i), role, name))
            return found;
    }
    return nullptr;
}

std::string nameOf(QQuickItem *item)
{
    auto *const known = item ? QAccessible::queryAccessibleInterface(item) : nullptr;
    const QString name = known ? known->text(QAccessible::Name) : QString();
    const QRectF box = item ? item->mapRectToScene(item->boundingRect()) : QRectF();
    return std::string(item ? item->metaObject()->className() : "nothing") + " " +
           name.toStdString() + " at " + std::to_string(int(box.x())) + ", " +
           std::to_string(int(box.y())) + ", " + std::to_string(int(box.width())) + " by " +
           std::to_string(int(box.height()));
}

QPointF centreOf(const QQuickItem &item)
{
    return item.mapToScene({item.width() / 2, item.height() / 2});
}

QString compact(const QJsonObject &document)
{
    return QString::fromUtf8(QJsonDocument(document).toJson(QJsonDocument::Compact));
}

QString plain(const std::optional<ADFNode> &document)
{
    return document ? ADF::plainText(*document) : QString();
}

} // namespace

void PrintTo(const WalkWorld &world, std::ostream *out)
{
    *out << (world.hand == Hand::Keys ? "keys" : "pointer")
         << (world.backEnd == BackEnd::Site ? ", site, " : ", demo, ") << world.size.width();
}

IssueWalk::IssueWalk()
{
    if (isDemo()) {
        subject = u"SUP-43"_s;
        child = u"WEB-202"_s;
        parent = u"WEB-201"_s;
        openDemo();
    } else {
        prepareSite();
        open();
    }
    store().setAppearance(GetParam().appearance);
    window().resize(GetParam().size.expandedTo(SmallestMain));
    settle();
    m_writesSeen = writes().size();
}

void IssueWalk::prepareSite()
{
    subject = keysOf(u"AIDE"_s).first();
    for (const SiteIssue &each : site.site().issues()) {
        if (!each.parentKey.isEmpty() && child.isEmpty()) {
            child = each.key;
            parent = each.parentKey;
        }
        site.site().issue(each.key)->assignee = site.site().me;
    }
    // Pictures that arrive late would move what is below them while it is used.
    for (const QString &key : {subject, child, parent}) {
        SiteIssue &issue = *site.site().issue(key);
        issue.comments.clear();
        issue.attachments.clear();
        issue.description = {};
        issue.due.reset();
    }
}

// What is there -------------------------------------------------------------------------------------------------------

bool IssueWalk::until(const std::function<bool()> &condition)
{
    return QTest::qWaitFor(
        [&] {
            clock->advance(50ms);
            return condition();
        },
        patience);
}

QQuickItem *IssueWalk::item(QAccessible::Role role, const QString &name)
{
    auto *const node = nodeOf(QAccessible::queryAccessibleInterface(&window()), role, name);
    return node ? qobject_cast<QQuickItem *>(node->object()) : nullptr;
}

QQuickItem *IssueWalk::see(QAccessible::Role role, const QString &name)
{
    EXPECT_TRUE(until([&] { return item(role, name) != nullptr; }))
        << "waited for " << name.toStdString();
    settle();
    return item(role, name);
}

bool IssueWalk::isAway(QAccessible::Role role, const QString &name)
{
    return until([&] { return !item(role, name); });
}

bool IssueWalk::hasFocus(QAccessible::Role role, const QString &name)
{
    QQuickItem *const focused = window().activeFocusItem();
    auto *const known = focused ? QAccessible::queryAccessibleInterface(focused) : nullptr;
    return known && known->role() == role && isCalled(*known, name);
}

QString IssueWalk::valueOf(QAccessible::Role role, const QString &name)
{
    auto *const node = nodeOf(QAccessible::queryAccessibleInterface(&window()), role, name);
    return node ? node->text(QAccessible::Value) : QString();
}

KeptIssue IssueWalk::kept(const QString &key)
{
    KeptIssue kept;
    if (isDemo()) {
        const SharedIssue issue = store().details().value(key);
        kept = {.title = issue->summary,
                .description = plain(issue->description),
                .due = issue->dueDate};
        for (const Attachment &file : issue->attachments)
            kept.files += file.filename;
        for (const Comment &comment : store().comments().value(key)) {
            kept.comments += plain(comment.body);
            kept.noteCount += comment.isInternal ? 1 : 0;
        }
        return kept;
    }
    const SiteIssue &issue = *site.site().issue(key);
    kept = {.title = issue.summary, .description = compact(issue.description), .due = issue.due};
    for (const SiteAttachment &file : issue.attachments)
        kept.files += file.filename;
    for (const SiteComment &comment : issue.comments) {
        kept.comments += compact(comment.body);
        kept.noteCount += comment.isInternal ? 1 : 0;
    }
    return kept;
}

QStringList IssueWalk::titles()
{
    QStringList titles;
    if (isDemo()) {
        for (const SharedIssue &issue : store().issues())
            titles += issue->summary;
        return titles;
    }
    for (const SiteIssue &issue : site.site().issues())
        titles += issue.summary;
    return titles;
}

void IssueWalk::expectWrites(const QStringList &expected)
{
    EXPECT_TRUE(until([this] { return store().writes().count() == 0; }));
    if (isDemo())
        return;
    EXPECT_TRUE(until([&] { return writes().size() >= m_writesSeen + expected.size(); }));
    EXPECT_TRUE(until([this] { return store().writes().count() == 0; }));
    EXPECT_EQ(writes().mid(m_writesSeen), expected);
    m_writesSeen = writes().size();
}

// What a user does ----------------------------------------------------------------------------------------------------

void IssueWalk::choose(QAccessible::Role role, const QString &name)
{
    reach(role, name);
    if (hasKeys())
        press(Qt::Key_Space);
}

void IssueWalk::enter(QAccessible::Role role, const QString &name)
{
    reach(role, name);
    EXPECT_TRUE(until([&] { return hasFocus(role, name); })) << name.toStdString();
}

void IssueWalk::reach(QAccessible::Role role, const QString &name)
{
    if (!see(role, name))
        return;
    if (hasKeys())
        tabTo(role, name);
    else
        scrollTo(role, name);
    settle();
    expectWithinReach(role, name);
    QQuickItem *const target = item(role, name);
    if (target && !hasKeys())
        pointAndPress(*target, Qt::LeftButton);
}

void IssueWalk::pointAndPress(const QQuickItem &target, Qt::MouseButton button)
{
    const QPoint centre = centreOf(target).toPoint();
    QTest::mouseMove(&window(), centre);
    QTest::mouseClick(&window(), button, {}, centre);
}

void IssueWalk::openMenuOf(QAccessible::Role role, const QString &name)
{
    if (!see(role, name))
        return;
    scrollTo(role, name);
    expectWithinReach(role, name);
    if (QQuickItem *const target = item(role, name))
        pointAndPress(*target, Qt::RightButton);
}

void IssueWalk::tabTo(QAccessible::Role role, const QString &name)
{
    for (int i = 0; i < 200 && !hasFocus(role, name); ++i)
        press(Qt::Key_Tab);
    EXPECT_TRUE(hasFocus(role, name)) << "Tab does not reach " << name.toStdString();
}

void IssueWalk::scrollTo(QAccessible::Role role, const QString &name)
{
    for (int i = 0; i < 100; ++i) {
        QQuickItem *const target = item(role, name);
        if (!target || isWithinReach(*target))
            return;
        const QPointF centre = centreOf(*target);
        const QPointF middle(centre.x(), window().height() / 2.0);
        turnWheel(middle, centre.y() < middle.y() ? 60 : -60);
    }
}

void IssueWalk::turnWheel(QPointF place, int angle)
{
    QWheelEvent turn(place, window().mapToGlobal(place), {}, {0, angle}, {}, {}, Qt::NoScrollPhase,
                     false);
    QCoreApplication::sendEvent(&window(), &turn);
    settle();
}

QQuickItem *IssueWalk::pressedAt(QQuickItem &target)
{
    const QPointF centre = centreOf(target);
    const QRectF frame(QPointF(), QSizeF(window().size()));
    return frame.contains(centre) ? pressTarget(*window().contentItem(), centre) : nullptr;
}

bool IssueWalk::isWithinReach(QQuickItem &target)
{
    return isInside(pressedAt(target), target);
}

void IssueWalk::expectWithinReach(QAccessible::Role role, const QString &name)
{
    EXPECT_TRUE(until([&] {
        QQuickItem *const target = item(role, name);
        return target && isWithinReach(*target);
    })) << name.toStdString()
        << (item(role, name) ? ": " + nameOf(item(role, name)) + " is covered by " +
                                   nameOf(pressedAt(*item(role, name)))
                             : " is gone");
}

void IssueWalk::rewrite(const QString &text)
{
    press(Qt::Key_A, Qt::ControlModifier);
    type(text);
}

void IssueWalk::goTo(const QString &key)
{
    if (!hasKeys()) {
        scrollListTo(key);
        return reach(QAccessible::ListItem, u"^"_s + key + u","_s);
    }
    for (const Qt::Key step : {Qt::Key_J, Qt::Key_K}) {
        for (int i = 0; i < 60 && store().focusedKey() != key; ++i)
            QTest::keyClick(&window(), step);
    }
    EXPECT_EQ(store().focusedKey(), key);
    settle();
    expectWithinReach(QAccessible::ListItem, u"^"_s + key + u","_s);
}

void IssueWalk::scrollListTo(const QString &key)
{
    QQuickItem *const any = see(QAccessible::ListItem, u"-"_s);
    if (!any)
        return;
    const QPointF place(centreOf(*any).x(), window().height() / 2.0);
    for (const int angle : {-120, 120}) {
        for (int i = 0; i < 60 && !item(QAccessible::ListItem, u"^"_s + key + u","_s); ++i)
            turnWheel(place, angle);
    }
}

void IssueWalk::openOwn(const QString &key)
{
    use(mainWindow());
    goTo(key);
    if (hasKeys())
        press(Qt::Key_Return, Qt::ControlModifier);
    else
        choose(QAccessible::Button, u"Nouvelle fenêtre"_s);
    ASSERT_TRUE(until([&] { return ownWindow(key) != nullptr; }));
    use(*ownWindow(key));
    window().resize(GetParam().size);
    settle();
    see(QAccessible::EditableText, u"Commentaire"_s);
}

std::unique_ptr<QMimeData> IssueWalk::files(const QString &name)
{
    QFile file(folder.filePath(name));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("Notes");
    auto files = std::make_unique<QMimeData>();
    files->setUrls({QUrl::fromLocalFile(file.fileName())});
    return files;
}
