#include "screens/Bench.h"
#include "screens/composer/ScriptedComposition.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QJSEngine>
#include <QMimeData>
#include <QTest>
#include <QtQml/qqml.h>

#include <gtest/gtest.h>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

ScriptedComposition *present = nullptr;

QObject *composition(QQmlEngine *, QJSEngine *)
{
    QJSEngine::setObjectOwnership(present, QJSEngine::CppOwnership);
    return present;
}

Attachment storedFile(const QString &name)
{
    Attachment file;
    file.filename = name;
    file.contentURL = QUrl(u"https://exemple.fr/"_s + name);
    return file;
}

} // namespace

class CommentComposerTest : public testing::Test
{
protected:
    CommentComposerTest()
    {
        written.people = {JiraUser{u"noam"_s, u"Noam Tessier"_s, u"noam@orvantis.fr"_s, {}},
                          JiraUser{u"nora"_s, u"Nora Vidal"_s, {}, {}}};
        present = &written;
        static const int isKnown =
            qmlRegisterSingletonType<Composition>("Tests", 1, 0, "Written", composition);
        Q_UNUSED(isKnown)
        page = bench.show(uR"(
            import Velmora.Composer
            import Tests
            FocusScope {
                id: root
                property alias composer: composer
                property int choices: 0
                width: 600
                height: 400
                focus: true
                Layer { item: root; isOpen: true; kind: Layer.Kind.Content; closesOnEscape: false }
                CommentComposer {
                    id: composer
                    x: 20
                    y: 300 - height
                    width: root.width - 40
                    focus: true
                    composition: Written
                    onFilesWanted: root.choices++
                }
                PushButton { id: after; y: 340; text: "Après" }
            })"_s);
        EXPECT_NE(page, nullptr) << bench.warnings();
    }
    ~CommentComposerTest() override
    {
        EXPECT_EQ(bench.warnings(), "");
        written.posts.cancelPending();
        written.searches.cancelPending();
        written.uploads.cancelPending();
    }

    void press(int key, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::keyClick(&bench.window(), Qt::Key(key), modifiers);
    }
    void type(const QString &text)
    {
        for (const QChar letter : text)
            QTest::sendKeyEvent(QTest::Click, &bench.window(), Qt::Key_unknown, QString(letter),
                                Qt::NoModifier);
    }
    void send() { press(Qt::Key_Return, Qt::ControlModifier); }
    QQuickItem *composer() { return page->property("composer").value<QQuickItem *>(); }
    QQuickItem *named(const QString &name) { return namedIn(bench.window().contentItem(), name); }
    /// The rows of the suggestions are made with the frame after their panel, hence the wait.
    void click(const QString &name)
    {
        ASSERT_TRUE(QTest::qWaitFor([&] { return named(name) != nullptr; })) << name.toStdString();
        auto *item = named(name);
        bench.window().grabWindow();
        const QPointF centre(item->width() / 2, item->height() / 2);
        QTest::mouseClick(&bench.window(), Qt::LeftButton, {}, item->mapToScene(centre).toPoint());
    }
    QQuickItem *editor() { return bench.window().activeFocusItem(); }
    QString text() { return editor()->property("text").toString(); }
    bool isEditing() { return editor() && editor()->inherits("QQuickTextEdit"); }
    bool suggests(bool expected = true)
    {
        return QTest::qWaitFor([&] { return (named(u"Mentions"_s) != nullptr) == expected; });
    }

    /// The text in the editor that is not its own: the placeholder.
    static QQuickItem *lastText(QQuickItem *item)
    {
        for (auto *child : item->childItems()) {
            if (child->inherits("QQuickText"))
                return child;
        }
        return nullptr;
    }
    static QQuickItem *namedIn(QQuickItem *item, const QString &name)
    {
        if (!item->isVisible())
            return nullptr;
        auto *known = Bench::accessible(item);
        if (known && known->text(QAccessible::Name) == name)
            return item;
        for (auto *child : item->childItems()) {
            if (auto *found = namedIn(child, name))
                return found;
        }
        return nullptr;
    }

    ScriptedComposition written;
    Bench bench;
    QQuickItem *page = nullptr;
};

// The suggestions -----------------------------------------------------------------------------------------------------

TEST_F(CommentComposerTest, AnAtSignShowsTheSuggestionsAndTheFocusStaysInTheEditor)
{
    type(u"Merci @n"_s);
    EXPECT_TRUE(suggests());
    EXPECT_TRUE(isEditing());
    EXPECT_NE(named(u"Mentionner"_s), nullptr);
    EXPECT_TRUE(QTest::qWaitFor([this] { return named(u"Nora Vidal"_s) != nullptr; }));
}

TEST_F(CommentComposerTest, TheSuggestionsDoNotCoverTheBox)
{
    written.setAllowsInternal(true);
    type(u"Merci @n"_s);
    ASSERT_TRUE(suggests());
    auto *list = named(u"Mentions"_s);
    const auto isBeside = [&] {
        const QRectF box =
            composer()->mapRectToScene({0, 0, composer()->width(), composer()->height()});
        return !list->mapRectToScene({0, 0, list->width(), list->height()}).intersects(box);
    };
    EXPECT_TRUE(QTest::qWaitFor(isBeside)) << "the choice of readers stays visible";
}

TEST_F(CommentComposerTest, ArrowAndReturnPickAndDoNotSend)
{
    type(u"Merci @n"_s);
    ASSERT_TRUE(suggests());
    press(Qt::Key_Down);
    press(Qt::Key_Return);
    EXPECT_EQ(text(), u"Merci @Nora Vidal "_s);
    EXPECT_EQ(editor()->property("cursorPosition"), 18);
    EXPECT_TRUE(suggests(false));
    EXPECT_EQ(written.posts.count(), 0);
    type(u"!"_s);
    EXPECT_EQ(text(), u"Merci @Nora Vidal !"_s);
}

TEST_F(CommentComposerTest, TabPicksWithTheListOpenAndMovesTheFocusWithItClosed)
{
    type(u"@nor"_s);
    ASSERT_TRUE(suggests());
    press(Qt::Key_Tab);
    EXPECT_EQ(text(), u"@Nora Vidal "_s);
    EXPECT_TRUE(suggests(false));
    press(Qt::Key_Tab);
    EXPECT_FALSE(isEditing());
}

TEST_F(CommentComposerTest, EscapeClosesTheListOnlyUntilTheWordsChange)
{
    type(u"@no"_s);
    ASSERT_TRUE(suggests());
    press(Qt::Key_Escape);
    EXPECT_TRUE(suggests(false));
    EXPECT_TRUE(isEditing());
    press(Qt::Key_Return);
    EXPECT_EQ(text(), u"@no\n"_s) << "Return is a line break again";
    press(Qt::Key_Backspace);
    type(u"r"_s);
    EXPECT_TRUE(suggests());
}

TEST_F(CommentComposerTest, ControlReturnSendsWithTheListOpen)
{
    type(u"Merci @no"_s);
    ASSERT_TRUE(suggests());
    send();
    ASSERT_EQ(written.posts.count(), 1);
    EXPECT_EQ(written.posts.last().argument().text, u"Merci @no"_s);
    EXPECT_EQ(text(), u"Merci @no"_s) << "no line break was inserted";
}

TEST_F(CommentComposerTest, AClickOnASuggestionPicksIt)
{
    type(u"@n"_s);
    ASSERT_TRUE(suggests());
    click(u"Nora Vidal"_s);
    EXPECT_EQ(text(), u"@Nora Vidal "_s);
    EXPECT_TRUE(isEditing());
}

TEST_F(CommentComposerTest, APressOutsideClosesTheListUntilTheWordsChange)
{
    type(u"@n"_s);
    ASSERT_TRUE(suggests());
    QTest::mouseClick(&bench.window(), Qt::LeftButton, {}, {590, 390});
    EXPECT_TRUE(suggests(false));
    type(u"o"_s);
    EXPECT_TRUE(suggests());
}

TEST_F(CommentComposerTest, TheMentionButtonBeginsAMentionAtTheCaret)
{
    type(u"Merci"_s);
    click(u"Mentionner quelqu'un (@)"_s);
    EXPECT_TRUE(isEditing());
    EXPECT_EQ(text(), u"Merci @"_s);
    EXPECT_TRUE(suggests());
}

TEST_F(CommentComposerTest, OneUndoTakesAPickBack)
{
    type(u"@nor"_s);
    ASSERT_TRUE(suggests());
    press(Qt::Key_Return);
    ASSERT_EQ(text(), u"@Nora Vidal "_s);
    press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(text(), u"@nor"_s);
}

// Sending -------------------------------------------------------------------------------------------------------------

TEST_F(CommentComposerTest, APostedCommentEmptiesTheEditorWhichKeepsTheFocus)
{
    type(u"Merci"_s);
    send();
    written.posts.last().finish(true);
    EXPECT_TRUE(isEditing());
    EXPECT_EQ(text(), QString());
    send();
    EXPECT_EQ(written.posts.count(), 1) << "there is nothing to send";
}

TEST_F(CommentComposerTest, ARefusedCommentKeepsTextMentionsFocusAndCaret)
{
    type(u"Merci @nor"_s);
    ASSERT_TRUE(suggests());
    press(Qt::Key_Return);
    press(Qt::Key_Left);
    press(Qt::Key_Left);
    send();
    written.posts.last().finish(false);
    EXPECT_TRUE(isEditing());
    EXPECT_EQ(text(), u"Merci @Nora Vidal "_s);
    EXPECT_EQ(editor()->property("cursorPosition"), 16);
    send();
    ASSERT_EQ(written.posts.count(), 2);
    EXPECT_EQ(written.posts.last().argument().mentions.size(), 1);
}

TEST_F(CommentComposerTest, TheSendButtonIsDisabledWithoutWordsAndTellsThatItSends)
{
    type(u"  "_s);
    EXPECT_FALSE(named(u"Envoyer (Ctrl+↩)"_s)->isEnabled());
    type(u"Merci"_s);
    click(u"Envoyer (Ctrl+↩)"_s);
    ASSERT_EQ(written.posts.count(), 1);
    ASSERT_NE(named(u"Envoi en cours"_s), nullptr);
    EXPECT_FALSE(named(u"Envoi en cours"_s)->isEnabled());
    EXPECT_TRUE(isEditing()) << "a click does not move the focus";
}

TEST_F(CommentComposerTest, AnotherIssueEmptiesTheEditor)
{
    type(u"Merci"_s);
    written.restart();
    EXPECT_EQ(text(), QString());
    press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(text(), QString()) << "the text of another issue does not come back";
}

// The readers ---------------------------------------------------------------------------------------------------------

TEST_F(CommentComposerTest, OutsideAServiceProjectThereIsNoChoiceOfReaders)
{
    EXPECT_EQ(named(u"Note interne"_s), nullptr);
    EXPECT_EQ(composer()->height(), 42);
    written.setAllowsInternal(true);
    EXPECT_TRUE(QTest::qWaitFor([this] { return named(u"Note interne"_s) != nullptr; }));
    EXPECT_TRUE(QTest::qWaitFor([this] { return composer()->height() == 72; }));
}

TEST_F(CommentComposerTest, AnInternalNoteIsChosenAndSentAsOne)
{
    written.setAllowsInternal(true);
    EXPECT_NE(named(u"Répondre au client"_s), nullptr);
    click(u"Note interne"_s);
    click(u"Note interne"_s);
    EXPECT_TRUE(written.isInternal()) << "a second click changes nothing";
    EXPECT_TRUE(isEditing());
    type(u"Entre nous"_s);
    EXPECT_NE(named(u"Ajouter la note interne (Ctrl+↩)"_s), nullptr);
    send();
    EXPECT_EQ(written.posts.last().argument().audience, CommentAudience::Agents);
}

TEST_F(CommentComposerTest, TheChoiceIsSpokenAsTwoRadioButtons)
{
    written.setAllowsInternal(true);
    auto *reply = named(u"Répondre au client"_s);
    ASSERT_NE(reply, nullptr);
    EXPECT_EQ(Bench::accessible(reply)->role(), QAccessible::RadioButton);
    EXPECT_TRUE(Bench::accessible(reply)->state().checked);
    written.setIsInternal(true);
    EXPECT_FALSE(Bench::accessible(reply)->state().checked);
    EXPECT_TRUE(Bench::accessible(named(u"Note interne"_s))->state().checked);
}

// Files ---------------------------------------------------------------------------------------------------------------

TEST_F(CommentComposerTest, PastedFilesAreUploadedAndLinked)
{
    type(u"Voir"_s);
    auto files = std::make_unique<QMimeData>();
    files->setUrls({QUrl(u"file:///tmp/a.png"_s)});
    QGuiApplication::clipboard()->setMimeData(files.release());
    press(Qt::Key_V, Qt::ControlModifier);
    ASSERT_EQ(written.uploads.count(), 1);
    EXPECT_EQ(text(), u"Voir"_s);
    written.uploads.last().finish({storedFile(u"a.png"_s)});
    EXPECT_EQ(text(), u"Voir\n📎 [a.png](https://exemple.fr/a.png)"_s);
    EXPECT_EQ(editor()->property("cursorPosition").toInt(), text().size());
}

TEST_F(CommentComposerTest, TheAttachmentsButtonAsksTheHostForFiles)
{
    click(u"Joindre des fichiers au ticket"_s);
    EXPECT_EQ(page->property("choices"), 1);
}

// Space ---------------------------------------------------------------------------------------------------------------

TEST_F(CommentComposerTest, TheEditorGrowsToEightLinesAndScrollsFromThere)
{
    const qreal line = composer()->height();
    type(u"1"_s);
    for (int i = 2; i <= 8; ++i) {
        press(Qt::Key_Return);
        type(QString::number(i));
    }
    const qreal eight = composer()->height();
    EXPECT_GT(eight, line + 90);
    for (int i = 0; i < 4; ++i)
        press(Qt::Key_Return);
    EXPECT_EQ(composer()->height(), eight);
    EXPECT_EQ(composer()->y() + eight, 300);
}

TEST_F(CommentComposerTest, APlaceholderThatDoesNotFitIsElided)
{
    const auto *placeholder = lastText(editor());
    ASSERT_NE(placeholder, nullptr);
    EXPECT_FALSE(placeholder->property("truncated").toBool());
    composer()->setWidth(300);
    bench.window().grabWindow();
    EXPECT_TRUE(placeholder->property("truncated").toBool());
    EXPECT_EQ(composer()->height(), 42);
}

TEST_F(CommentComposerTest, TabWalksTheButtonsAndOut)
{
    written.setAllowsInternal(true);
    type(u"Merci"_s);
    QStringList names;
    for (int i = 0; i < 4; ++i) {
        press(Qt::Key_Tab);
        names.append(Bench::accessible(editor())->text(QAccessible::Name));
    }
    EXPECT_EQ(names,
              (QStringList{u"Mentionner quelqu'un (@)"_s, u"Joindre des fichiers au ticket"_s,
                           u"Envoyer (Ctrl+↩)"_s, u"Après"_s}));
}
