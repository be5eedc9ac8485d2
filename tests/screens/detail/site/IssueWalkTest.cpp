#include "screens/detail/site/IssueWalk.h"

#include <QClipboard>
#include <QDropEvent>
#include <QGuiApplication>
#include <QMimeData>
#include <QTest>

#include <vector>

using namespace Qt::StringLiterals;

namespace {

QString nameOf(const WalkWorld &world)
{
    return (world.hand == Hand::Keys ? u"Keys"_s : u"Pointer"_s) +
           (world.backEnd == BackEnd::Site ? u"Site"_s : u"Demo"_s) +
           QString::number(world.size.width()) +
           (world.appearance == AppearanceMode::Dark ? u"Dark"_s : u"Light"_s);
}

} // namespace

/// The steps of a day of work on issues.
class WorkOnIssues : public IssueWalk
{
protected:
    void work()
    {
        using Work = WorkOnIssues;
        int number = 0;
        for (void (Work::*step)() :
             {&Work::readTen, &Work::visitTheFamily, &Work::openTheSubject, &Work::rename,
              &Work::describe, &Work::comment, &Work::note, &Work::attachByMenu,
              &Work::attachDirectly, &Work::setAndClearTheDueDate, &Work::createThree}) {
            (this->*step)();
            ++number;
            if (HasFailure())
                FAIL() << "in step " << number;
        }
    }

    QString writeTo(const QString &method, const QString &rest = {}) const
    {
        return method + u" /rest/api/3/issue/"_s + subject + rest;
    }

    void readTen()
    {
        QStringList read;
        for (const SharedIssue &issue : QList<SharedIssue>(store().issues()).first(10)) {
            goTo(issue->key);
            if (hasKeys() && !store().inspectorKey())
                press(Qt::Key_Return);
            EXPECT_TRUE(until([&] { return store().inspectorKey() == issue->key; }));
            EXPECT_TRUE(until([&] {
                return valueOf(QAccessible::EditableText, u"Titre"_s) == issue->summary;
            })) << issue->key.toStdString();
            waitFor(issue->key);
            read += issue->key;
        }
        EXPECT_EQ(read.size(), 10);
        expectWrites({});
    }

    /// Until everything about an issue is shown.
    void waitFor(const QString &key)
    {
        EXPECT_TRUE(until(
            [&] { return store().details().contains(key) && store().comments().contains(key); }));
        settle();
    }

    void visitTheFamily()
    {
        goTo(child);
        if (hasKeys() && !store().inspectorKey())
            press(Qt::Key_Return);
        choose(QAccessible::Button, u"Ticket parent "_s + parent);
        EXPECT_TRUE(until([this] { return store().inspectorKey() == parent; }));
        waitFor(parent);
        choose(QAccessible::Button, u"^"_s + child + u", "_s);
        EXPECT_TRUE(until([this] { return store().inspectorKey() == child; }));
        see(QAccessible::Button, u"Ticket parent "_s + parent);
        expectWrites({});
        leaveTheInspector();
    }

    void leaveTheInspector()
    {
        if (!hasKeys())
            return choose(QAccessible::Button, u"Fermer l'inspecteur"_s);
        for (int i = 0; i < 3 && store().inspectorKey(); ++i)
            press(Qt::Key_Escape);
        EXPECT_FALSE(store().inspectorKey());
    }

    void openTheSubject() { openOwn(subject); }

    void rename()
    {
        enter(QAccessible::EditableText, u"Titre"_s);
        rewrite(u"Un titre tout neuf"_s);
        if (hasKeys())
            press(Qt::Key_Return);
        else
            enter(QAccessible::EditableText, u"Commentaire"_s);
        expectWrites({writeTo(u"PUT"_s)});
        EXPECT_EQ(kept(subject).title, u"Un titre tout neuf"_s);
    }

    void describe()
    {
        choose(QAccessible::Button, u"description"_s);
        EXPECT_TRUE(
            until([this] { return hasFocus(QAccessible::EditableText, u"Description"_s); }));
        rewrite(u"Une description **nouvelle**"_s);
        if (hasKeys())
            press(Qt::Key_Return, Qt::ControlModifier);
        else
            choose(QAccessible::Button, u"Enregistrer"_s);
        expectWrites({writeTo(u"PUT"_s)});
        EXPECT_TRUE(kept(subject).description.contains(u"nouvelle"_s));
        EXPECT_TRUE(isAway(QAccessible::EditableText, u"Description"_s));
    }

    /// The name of the user who was mentioned: the second suggestion.
    QString mention()
    {
        if (hasKeys())
            type(u"@"_s);
        else
            choose(QAccessible::Button, u"Mentionner quelqu'un"_s);
        see(QAccessible::Dialog, u"Mentions"_s);
        auto rows = spokenIn(window(), QAccessible::ListItem);
        rows.removeIf(
            [](const Spoken &row) { return !row.state.focusable || !row.state.selectable; });
        if (rows.size() < 2) {
            ADD_FAILURE() << rows.size() << " suggestions";
            return {};
        }
        const QString name = rows[1].name;
        if (hasKeys()) {
            press(Qt::Key_Down);
            press(Qt::Key_Return);
        } else {
            choose(QAccessible::ListItem, name);
        }
        EXPECT_TRUE(isAway(QAccessible::Dialog, u"Mentions"_s));
        EXPECT_TRUE(valueOf(QAccessible::EditableText, u"Commentaire"_s).contains(u'@' + name));
        return name;
    }

    void send(const QString &button)
    {
        if (hasKeys())
            press(Qt::Key_Return, Qt::ControlModifier);
        else
            choose(QAccessible::Button, button);
        expectWrites({writeTo(u"POST"_s, u"/comment"_s)});
    }

    void comment()
    {
        const auto before = kept(subject).comments.size();
        enter(QAccessible::EditableText, u"Commentaire"_s);
        type(u"Bonjour "_s);
        const QString first = mention();
        type(u" et "_s);
        const QString second = mention();
        send(u"Envoyer"_s);
        const KeptIssue now = kept(subject);
        ASSERT_EQ(now.comments.size(), before + 1);
        EXPECT_TRUE(now.comments.last().contains(u"Bonjour"_s));
        EXPECT_TRUE(now.comments.last().contains(u'@' + first));
        EXPECT_TRUE(now.comments.last().contains(u'@' + second));
        EXPECT_EQ(valueOf(QAccessible::EditableText, u"Commentaire"_s), QString());
    }

    void note()
    {
        const KeptIssue before = kept(subject);
        choose(QAccessible::RadioButton, u"Note interne"_s);
        enter(QAccessible::EditableText, u"Note interne"_s);
        type(u"Entre nous"_s);
        send(u"Ajouter la note interne"_s);
        EXPECT_EQ(kept(subject).noteCount, before.noteCount + 1);
        EXPECT_TRUE(kept(subject).comments.last().contains(u"Entre nous"_s));
        choose(QAccessible::RadioButton, u"Répondre au client"_s);
        see(QAccessible::EditableText, u"Commentaire"_s);
    }

    void attachByMenu()
    {
        desktop->files = files(u"colle.txt"_s)->urls();
        if (hasKeys()) {
            enter(QAccessible::Button, u"^Joindre$"_s);
            press(Qt::Key_Down);
            see(QAccessible::MenuItem, u"Coller depuis le presse-papiers"_s);
            for (int i = 0; i < 3 && !hasFocus(QAccessible::MenuItem, u"Coller"_s); ++i)
                press(Qt::Key_Down);
            press(Qt::Key_Return);
        } else {
            openMenuOf(QAccessible::Button, u"^Joindre$"_s);
            choose(QAccessible::MenuItem, u"Coller depuis le presse-papiers"_s);
        }
        expectAttached(u"colle.txt"_s);
    }

    void expectAttached(const QString &name)
    {
        expectWrites({writeTo(u"POST"_s, u"/attachments"_s)});
        EXPECT_EQ(kept(subject).files.count(name), 1)
            << kept(subject).files.join(u' ').toStdString();
        see(QAccessible::ListItem, name);
    }

    /// By keys as a paste into the comment, which then refers to the file.
    void attachDirectly()
    {
        const auto content = files(u"apporte.txt"_s);
        if (hasKeys()) {
            enter(QAccessible::EditableText, u"Commentaire"_s);
            QGuiApplication::clipboard()->setMimeData(files(u"apporte.txt"_s).release());
            press(Qt::Key_V, Qt::ControlModifier);
            expectAttached(u"apporte.txt"_s);
            EXPECT_TRUE(until([this] {
                return valueOf(QAccessible::EditableText, u"Commentaire"_s).contains(u"apporte"_s);
            }));
            send(u"Envoyer"_s);
            return;
        }
        const QPoint at(window().width() / 2, window().height() / 3);
        QDragEnterEvent enter(at, Qt::CopyAction, content.get(), Qt::LeftButton, {});
        QCoreApplication::sendEvent(&window(), &enter);
        QDropEvent drop(at, Qt::CopyAction, content.get(), Qt::LeftButton, {});
        QCoreApplication::sendEvent(&window(), &drop);
        EXPECT_TRUE(drop.isAccepted());
        expectAttached(u"apporte.txt"_s);
    }

    void setAndClearTheDueDate()
    {
        choose(QAccessible::Button, u"chéance"_s);
        see(QAccessible::Grouping, u"Calendrier"_s);
        if (hasKeys()) {
            press(Qt::Key_Right);
            press(Qt::Key_Return);
        } else {
            choose(QAccessible::Button, u"\\b30 octobre"_s);
            choose(QAccessible::Button, u"Valider"_s);
        }
        EXPECT_TRUE(isAway(QAccessible::Grouping, u"Calendrier"_s));
        expectWrites({writeTo(u"PUT"_s)});
        EXPECT_EQ(kept(subject).due, QDate(2026, 10, 30));
        choose(QAccessible::Button, u"Échéance"_s);
        see(QAccessible::Grouping, u"Calendrier"_s);
        choose(QAccessible::Button, u"Retirer"_s);
        EXPECT_TRUE(isAway(QAccessible::Grouping, u"Calendrier"_s));
        expectWrites({writeTo(u"PUT"_s)});
        EXPECT_EQ(kept(subject).due, std::nullopt);
    }

    void createThree()
    {
        use(mainWindow());
        if (hasKeys())
            QTest::keyClick(&window(), Qt::Key_C);
        else
            choose(QAccessible::Button, u"Nouveau ticket"_s);
        see(QAccessible::EditableText, u"Titre du ticket"_s);
        choose(QAccessible::CheckBox, u"Créer d'autres tickets"_s);
        const QStringList created{u"Premier né"_s, u"Deuxième né"_s, u"Troisième né"_s};
        for (const QString &title : created) {
            enter(QAccessible::EditableText, u"Titre du ticket"_s);
            type(title);
            if (hasKeys())
                press(Qt::Key_Return, Qt::ControlModifier);
            else
                choose(QAccessible::Button, u"Créer le ticket"_s);
            expectWrites({u"POST /rest/api/3/issue"_s});
            EXPECT_TRUE(until([this] {
                return valueOf(QAccessible::EditableText, u"Titre du ticket"_s).isEmpty();
            }));
        }
        if (hasKeys())
            press(Qt::Key_Escape);
        else
            choose(QAccessible::Button, u"^Fermer$"_s);
        EXPECT_TRUE(isAway(QAccessible::EditableText, u"Titre du ticket"_s));
        expectWrites({});
        store().select(IssueScope::reported());
        for (const QString &title : created)
            EXPECT_TRUE(until([&] { return titles().count(title) == 1; })) << title.toStdString();
    }
};

TEST_P(WorkOnIssues, StoresEachStepOnceWithOneHand)
{
    work();
}

/// Each hand at each back end, in the smallest window and in a large one. `VELMORA_WALK_WORLDS=all` adds the other worlds.
std::vector<WalkWorld> worlds()
{
    const QSize small(520, 480);
    const QSize large(2560, 1440);
    std::vector<WalkWorld> worlds{{Hand::Keys, BackEnd::Site, small, AppearanceMode::Light},
                                  {Hand::Pointer, BackEnd::Site, small, AppearanceMode::Dark},
                                  {Hand::Keys, BackEnd::Demo, large, AppearanceMode::Dark},
                                  {Hand::Pointer, BackEnd::Demo, large, AppearanceMode::Light}};
    if (qEnvironmentVariable("VELMORA_WALK_WORLDS") != u"all"_s)
        return worlds;
    for (const Hand hand : {Hand::Keys, Hand::Pointer}) {
        worlds.push_back({hand, BackEnd::Site, {940, 580}, AppearanceMode::Dark});
        worlds.push_back({hand, BackEnd::Site, large, AppearanceMode::Light});
        worlds.push_back({hand, BackEnd::Demo, small, AppearanceMode::Dark});
        worlds.push_back({hand, BackEnd::Demo, {940, 580}, AppearanceMode::Light});
    }
    return worlds;
}

INSTANTIATE_TEST_SUITE_P(Each, WorkOnIssues, testing::ValuesIn(worlds()),
                         [](const auto &info) { return nameOf(info.param).toStdString(); });
