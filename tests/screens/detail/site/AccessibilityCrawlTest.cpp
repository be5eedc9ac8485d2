#include "screens/detail/site/SiteWindow.h"
#include "support/TaskResult.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonObject>
#include <QQuickItem>
#include <QTest>

using namespace Qt::StringLiterals;

/// What a screen reader finds in each state of an issue's screen.
class IssueCrawl : public SiteWindow
{
protected:
    IssueCrawl()
    {
        SiteIssue &issue = *site.site().issue(keysOf(u"AIDE"_s).first());
        issue.comments.clear();
        site.site().comment(issue, {.body = paragraph(u"Bonjour"_s)});
        open();
        openWindow(issue.key);
        await(QAccessible::EditableText, u"Commentaire"_s);
        // The details of the issue arrive later than the window opens.
        await(QAccessible::ListItem, u" a commenté"_s);
    }

    void openWindow(const QString &key)
    {
        Q_EMIT store().openWindowRequested(key);
        ASSERT_TRUE(QTest::qWaitFor([&] { return ownWindow(key) != nullptr; }, patience));
        use(*ownWindow(key));
    }

    static QJsonObject document(const QJsonArray &blocks)
    {
        return {{u"type"_s, u"doc"_s}, {u"version"_s, 1}, {u"content"_s, blocks}};
    }
    static QJsonObject paragraph(const QString &text)
    {
        const QJsonObject words{{u"type"_s, u"text"_s}, {u"text"_s, text}};
        const QJsonObject line{{u"type"_s, u"paragraph"_s}, {u"content"_s, QJsonArray{words}}};
        return document({line});
    }

    /// Each element that takes the focus has a name and a role, and none has the name of another beside it.
    void expectInOrder(const char *state)
    {
        expectInOrder(state, QAccessible::queryAccessibleInterface(&window()));
    }
    void expectInOrder(const char *state, QAccessibleInterface *part, int atLeast = 6)
    {
        settle();
        int focusable = 0;
        visit(part, state, focusable);
        EXPECT_GE(focusable, atLeast) << state;
    }

    /// One round of Tab through the present window: what has the focus after each press.
    QList<QQuickItem *> tabRound()
    {
        QList<QQuickItem *> round;
        for (int i = 0; i < 100; ++i) {
            press(Qt::Key_Tab);
            QQuickItem *const item = window().activeFocusItem();
            if (round.contains(item))
                break;
            round += item;
        }
        return round;
    }

    static std::string nameOf(QQuickItem *item)
    {
        auto *const known = QAccessible::queryAccessibleInterface(item);
        return known ? known->text(QAccessible::Name).toStdString() : "nameless";
    }

    /// From top to bottom, and from left to right within a line. The round begins anywhere.
    static void expectAsRead(const QList<QQuickItem *> &round)
    {
        std::string returns;
        int count = 0;
        for (qsizetype i = 0; i < round.size(); ++i) {
            QQuickItem *const from = round[i];
            QQuickItem *const to = round[(i + 1) % round.size()];
            const QRectF before = from->mapRectToScene(from->boundingRect());
            const QRectF after = to->mapRectToScene(to->boundingRect());
            const bool isSameLine = after.top() < before.bottom() && after.bottom() > before.top();
            if (after.bottom() <= before.top() || (isSameLine && after.right() <= before.left())) {
                ++count;
                returns += nameOf(from) + " before " + nameOf(to) + "; ";
            }
        }
        EXPECT_LE(count, 1) << returns;
    }

    void visit(QAccessibleInterface *node, const char *state, int &focusable)
    {
        QStringList beside;
        for (int i = 0; i < node->childCount(); ++i) {
            auto *child = node->child(i);
            if (!child || child->state().invisible)
                continue;
            // The bars of several views have the same name: their views tell them apart.
            if (child->state().focusable && child->role() != QAccessible::ScrollBar) {
                ++focusable;
                expectNamed(*child, state);
                beside += u"%1 %2"_s.arg(child->role()).arg(child->text(QAccessible::Name));
            }
            visit(child, state, focusable);
        }
        std::ranges::sort(beside);
        const auto twice = std::ranges::adjacent_find(beside);
        EXPECT_TRUE(twice == beside.end()) << state << ": twice " << twice->toStdString();
    }

    static void expectNamed(QAccessibleInterface &node, const char *state)
    {
        const std::string place = std::string(state) + ": role " + std::to_string(node.role()) +
                                  ", " + node.text(QAccessible::Name).toStdString() + " at " +
                                  std::to_string(node.rect().x()) + ", " +
                                  std::to_string(node.rect().y());
        EXPECT_FALSE(node.text(QAccessible::Name).trimmed().isEmpty()) << place;
        EXPECT_NE(node.role(), QAccessible::NoRole) << place;
        EXPECT_NE(node.role(), QAccessible::Client) << place;
    }

    /// The names of the items of the list with this name.
    QStringList itemsOf(const QString &list)
    {
        return itemsOf(QAccessible::queryAccessibleInterface(&window()), list);
    }
    static QStringList itemsOf(QAccessibleInterface *node, const QString &list)
    {
        QStringList names;
        const bool isList =
            node->role() == QAccessible::List && node->text(QAccessible::Name) == list;
        for (int i = 0; i < node->childCount(); ++i) {
            auto *const child = node->child(i);
            if (!child)
                continue;
            if (isList && child->role() == QAccessible::ListItem)
                names += child->text(QAccessible::Name);
            names += itemsOf(child, list);
        }
        return names;
    }

    void press(QAccessible::Role role, const QString &name)
    {
        ASSERT_TRUE(pressAction(window(), role, name)) << name.toStdString();
        settle();
    }
    using SiteWindow::press;
};

TEST_F(IssueCrawl, EachElementOfAnIssueHasANameAndARoleInEveryState)
{
    expectInOrder("read");
    ASSERT_TRUE(click(QAccessible::EditableText, u"Titre"_s));
    expectInOrder("title");
    press(Qt::Key_Escape);
    press(QAccessible::Button, u"la description"_s);
    await(QAccessible::EditableText, u"Description"_s);
    expectInOrder("description");
    press(Qt::Key_Escape);
    press(QAccessible::Button, u"Échéance"_s);
    await(QAccessible::Grouping, u"Calendrier"_s);
    expectInOrder("due date");
    press(Qt::Key_Escape);
    ASSERT_TRUE(isGone(QAccessible::Grouping, u"Calendrier"_s));
    press(QAccessible::RadioButton, u"Note interne"_s);
    expectInOrder("internal note");
    ASSERT_TRUE(click(QAccessible::EditableText, u"Note interne"_s));
    type(u"@"_s);
    await(QAccessible::Dialog, u"Mentions"_s);
    expectInOrder("mentions");
}

TEST_F(IssueCrawl, TabFollowsTheEyeThroughAnIssue)
{
    window().resize(760, 1400);
    settle();
    const auto round = tabRound();
    EXPECT_GT(round.size(), 12);
    expectAsRead(round);
}

TEST_F(IssueCrawl, AnIssueThatIsLoadingOrUnavailableSaysSoAndOffersToTryAgain)
{
    site.server().holdBack(
        [](const RawRequest &request) { return request.target.contains("/AIDE-999"); });
    openWindow(u"AIDE-999"_s);
    await(QAccessible::Animation, u"Chargement"_s);
    site.server().release();
    await(QAccessible::Button, u"Réessayer"_s);
    EXPECT_TRUE(has(QAccessible::Grouping, u"Ticket indisponible"_s));
    expectInOrder("unavailable", QAccessible::queryAccessibleInterface(&window()), 1);
}

TEST_F(IssueCrawl, FilesAndSubIssuesAreNamedAndTabFollowsTheEye)
{
    const auto issues = site.site().issues();
    const auto child = std::ranges::find_if(
        issues, [](const SiteIssue &each) { return !each.parentKey.isEmpty(); });
    ASSERT_NE(child, issues.end());
    SiteIssue &parent = *site.site().issue(child->parentKey);
    site.site().attach(parent, {.filename = u"notes.txt"_s, .mimeType = u"text/plain"_s});
    openWindow(parent.key);
    await(QAccessible::EditableText, u"Commentaire"_s);
    await(QAccessible::ListItem, u"notes.txt"_s);
    await(QAccessible::Button, child->key);
    expectInOrder("files and sub-issues");
    window().resize(760, 1800);
    settle();
    expectAsRead(tabRound());
}

TEST_F(IssueCrawl, TheSendButtonIsToldAsDisabledUntilThereAreWordsAndWhileItSends)
{
    EXPECT_TRUE(find(QAccessible::Button, u"Envoyer"_s).state.disabled);
    EXPECT_FALSE(find(QAccessible::Button, u"Envoyer"_s).state.focusable);
    ASSERT_TRUE(click(QAccessible::EditableText, u"Commentaire"_s));
    type(u"Bonjour"_s);
    EXPECT_FALSE(find(QAccessible::Button, u"Envoyer"_s).state.disabled);
    site.server().holdBack([](const RawRequest &) { return true; });
    press(QAccessible::Button, u"Envoyer"_s);
    EXPECT_TRUE(find(QAccessible::Button, u"Envoi en cours"_s).state.disabled);
    pressAction(window(), QAccessible::Button, u"Envoi en cours"_s);
    site.server().release();
    EXPECT_TRUE(areWritesOver());
    EXPECT_EQ(postedComments().size(), 1);
}

TEST_F(IssueCrawl, ACommentIsOneSentenceWithItsAuthorAndItsTime)
{
    const auto comments = spokenIn(window(), QAccessible::ListItem, u" a commenté"_s);
    ASSERT_EQ(comments.size(), 1);
    const QString author = site.site().user(site.site().me)->displayName;
    EXPECT_TRUE(comments.first().name.contains(author)) << comments.first().name.toStdString();
    EXPECT_FALSE(comments.first().description.isEmpty()) << "the date in full";
}

TEST_F(IssueCrawl, EachCommentIsAnItemOfTheListAndTellsWhoCanReadIt)
{
    const QString key = keysOf(u"AIDE"_s).at(1);
    SiteIssue &issue = *site.site().issue(key);
    issue.comments.clear();
    site.site().comment(issue, {.body = paragraph(u"Une réponse"_s)});
    site.site().comment(issue, {.body = paragraph(u"Entre nous"_s), .isInternal = true});
    site.site().comment(issue, {.body = document({}), .isInternal = true});
    site.site().comment(issue, {.body = paragraph(u"Pour eux"_s), .role = u"Administrators"_s});
    openWindow(key);
    await(QAccessible::ListItem, u", visible uniquement par « Administrators »"_s);
    QStringList comments = itemsOf(u"Commentaires"_s);
    for (QString &comment : comments)
        comment = comment.section(u", "_s, 1);
    const QStringList expected{u"visible par le client"_s, u"note interne"_s, u"note interne"_s,
                               u"visible uniquement par « Administrators »"_s};
    EXPECT_EQ(comments, expected) << comments.join(u'|').toStdString();
}

TEST_F(IssueCrawl, TheFieldTellsTheHighlightedSuggestionAndHowManyThereAre)
{
    const auto told = [this] {
        return find(QAccessible::EditableText, u"Commentaire"_s).description;
    };
    ASSERT_TRUE(click(QAccessible::EditableText, u"Commentaire"_s));
    EXPECT_EQ(told(), QString());
    type(u"@"_s);
    await(QAccessible::Dialog, u"Mentions"_s);
    const auto count = itemsOf(u"Mentions"_s).size();
    ASSERT_GT(count, 1);
    EXPECT_EQ(told(), u"%1, 1 sur %2"_s.arg(itemsOf(u"Mentions"_s).first()).arg(count));
    press(Qt::Key_Down);
    EXPECT_EQ(told(), u"%1, 2 sur %2"_s.arg(itemsOf(u"Mentions"_s).at(1)).arg(count));
    press(Qt::Key_Escape);
    EXPECT_TRUE(isGone(QAccessible::Dialog, u"Mentions"_s));
    EXPECT_EQ(told(), QString());
}

TEST_F(IssueCrawl, AnUploadIsAnItemOfTheListOfFilesAndItsButtonCancelsIt)
{
    QFile file(folder.filePath(u"notes.txt"_s));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("Notes");
    file.close();
    site.server().holdBack(
        [](const RawRequest &request) { return request.target.contains("/attachments"); });
    const TaskResult<QList<Attachment>> upload(store().uploadAttachments(
        keysOf(u"AIDE"_s).first(), {QUrl::fromLocalFile(file.fileName())}));
    await(QAccessible::ListItem, u"Envoi de notes.txt"_s);
    EXPECT_TRUE(itemsOf(u"Fichiers joints"_s).contains(u"Envoi de notes.txt"_s));
    expectInOrder("upload");
    press(QAccessible::Button, u"Annuler l'envoi de notes.txt"_s);
    EXPECT_TRUE(isGone(QAccessible::ListItem, u"Envoi de notes.txt"_s));
    EXPECT_TRUE(upload.isDone());
}

TEST_F(IssueCrawl, EachElementOfTheSheetForANewIssueHasANameAndARole)
{
    use(mainWindow());
    store().run(Command::NewIssue);
    await(QAccessible::EditableText, u"Titre du ticket"_s);
    auto *field = QAccessible::queryAccessibleInterface(window().activeFocusItem());
    while (field && field->role() != QAccessible::Dialog)
        field = field->parent();
    ASSERT_NE(field, nullptr);
    expectInOrder("new issue", field);
    EXPECT_TRUE(find(QAccessible::Button, u"Créer le ticket"_s).state.disabled);
}
