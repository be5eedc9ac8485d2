#include "screens/detail/site/SiteWindow.h"

#include <QKeyEvent>
#include <QMap>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QTest>

#include <chrono>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

/// The number of sequences, which `VELMORA_NOTE_SEEDS` sets.
int seedCount()
{
    bool isSet = false;
    const int count = qEnvironmentVariableIntValue("VELMORA_NOTE_SEEDS", &isSet);
    return isSet ? count : 6;
}

QStringList wordsIn(const QString &text)
{
    static const QRegularExpression word(u"mot\\d+"_s);
    QStringList words;
    for (const auto &match : word.globalMatch(text))
        words += match.captured();
    return words;
}

/// What a composer tells its user.
struct Told
{
    bool isThere = false;
    QString text;
    bool isInternal = false;
    bool isSending = false;
    bool offersDraft = false;
};

} // namespace

/// Random sequences of typing, switches, sending, other issues, other windows, other sessions and responses of any kind and
/// at any time. Beside them is a record of what the user was told about each word.
class InternalNotes : public SiteWindow, public testing::WithParamInterface<int>
{
protected:
    InternalNotes()
    {
        open();
        notedKeys = keysOf(u"AIDE"_s).first(2);
        notedKeys += keysOf(u"MOB"_s).value(0, site.site().issues().first().key);
        store().openInInspector(notedKeys.first());
        pump();
    }

    int below(int end) { return random.bounded(end); }
    bool oneIn(int times) { return below(times) == 0; }
    void pump()
    {
        for (int i = 0; i < 3; ++i)
            QCoreApplication::processEvents();
        window().grabWindow();
    }
    QString keyShown()
    {
        return &window() == &mainWindow() ? store().inspectorKey().value_or(QString()) : ownKey;
    }

    Told told()
    {
        Told told;
        for (const Spoken &thing : spokenIn(window())) {
            if (thing.role == QAccessible::EditableText &&
                (thing.name == u"Commentaire" || thing.name == u"Note interne")) {
                told.isThere = true;
                told.text = thing.value;
            }
            if (thing.role == QAccessible::RadioButton && thing.name == u"Note interne")
                told.isInternal = thing.state.checked;
            if (thing.role == QAccessible::Button && thing.name == u"Envoi en cours")
                told.isSending = true;
            if (thing.role == QAccessible::Button && thing.name == u"Reprendre le brouillon")
                told.offersDraft = true;
        }
        return told;
    }

    // The record ------------------------------------------------------------------------------------------------------
    /// The words that are being sent from the present composer.
    QStringList wordsUnderWay(const Told &now)
    {
        return now.isSending ? wordsIn(lastSent.value(&window())) : QStringList();
    }

    /// Every word that was marked internal must still be shown in an internal note.
    void check(int step)
    {
        const Told now = told();
        const QStringList underWay = wordsUnderWay(now);
        for (const QString &word : wordsIn(now.text)) {
            if (underWay.contains(word))
                continue;
            if (now.isInternal)
                internal[word] = true;
            else
                EXPECT_FALSE(internal.value(word)) << word.toStdString() << " after step " << step;
        }
    }

    void noteSending(const Told &before)
    {
        const QString text = before.text.simplified();
        if (text.isEmpty() || before.isSending)
            return;
        for (const QString &word : wordsIn(text))
            EXPECT_FALSE(internal.value(word) && !before.isInternal) << word.toStdString();
        expected += {keyShown(), text, before.isInternal};
        lastSent[&window()] = before.text;
    }

    // The steps -------------------------------------------------------------------------------------------------------
    bool focusField()
    {
        return click(QAccessible::EditableText, u"Commentaire"_s) ||
               click(QAccessible::EditableText, u"Note interne"_s);
    }

    void typeAWord()
    {
        if (!focusField())
            return;
        press(oneIn(4) ? Qt::Key_Home : Qt::Key_End, Qt::ControlModifier);
        const QString word = u"mot%1"_s.arg(++lastWord);
        type(word + u' ');
        const Told now = told();
        EXPECT_TRUE(now.text.contains(word));
        internal[word] = now.isInternal;
    }

    void switchReaders()
    {
        const Told before = told();
        const QStringList underWay = wordsUnderWay(before);
        const bool wantsNote = oneIn(2);
        const QString name = wantsNote ? u"Note interne"_s : u"Répondre au client"_s;
        // During a click a response may arrive, so that nobody knows what the choice was about.
        if (before.isSending ? !pressAction(window(), QAccessible::RadioButton, name)
                             : !click(QAccessible::RadioButton, name))
            return;
        const Told now = told();
        EXPECT_EQ(now.isInternal, wantsNote);
        // The choice is about what stays in the composer, not about what is under way.
        for (const QString &word : wordsIn(now.text)) {
            if (!underWay.contains(word))
                internal[word] = wantsNote;
        }
    }

    void sendByKey()
    {
        if (!focusField())
            return;
        noteSending(told());
        // Not `press`, during which a response may arrive, so that nobody knows what was sent.
        QKeyEvent event(QEvent::KeyPress, Qt::Key_Return, Qt::ControlModifier);
        QCoreApplication::sendEvent(&window(), &event);
    }

    void sendByButton()
    {
        const Told before = told();
        if (before.text.trimmed().isEmpty() || before.isSending)
            return;
        noteSending(before);
        EXPECT_TRUE(click(QAccessible::Button,
                          before.isInternal ? u"Ajouter la note interne"_s : u"Envoyer"_s));
    }

    void showAnother()
    {
        if (oneIn(4))
            return store().setInspectorKey(std::nullopt);
        store().openInInspector(notedKeys[below(int(notedKeys.size()))]);
    }

    void useTheOtherWindow()
    {
        movePointerAway();
        if (&window() != &mainWindow()) {
            if (oneIn(3))
                ownWindow(ownKey)->close();
            return use(mainWindow());
        }
        ownKey = notedKeys[below(2)];
        Q_EMIT store().openWindowRequested(ownKey);
        ASSERT_TRUE(QTest::qWaitFor([this] { return ownWindow(ownKey) != nullptr; }));
        use(*ownWindow(ownKey));
    }

    void meetAFault()
    {
        switch (below(4)) {
        case 0:
            return site.answer(SiteOperation::AddComment, RawAnswer::json("{}", 400));
        case 1:
            return site.answer(SiteOperation::AddComment,
                               RawAnswer::nothing(RawAnswer::Ending::Reset));
        case 2:
            return site.server().holdBack([](const RawRequest &) { return true; });
        default:
            return site.recover();
        }
    }

    void changeSession()
    {
        site.recover();
        if (store().writes().count() > 0)
            noteWritesThatMayEnd();
        signOut();
        site.server().release();
        use(mainWindow());
        signIn();
        ASSERT_TRUE(QTest::qWaitFor([this] { return !store().issues().isEmpty(); }));
        internal.clear();
        lastSent.clear();
    }

    /// A request that is under way at the end of a session reaches the site or not.
    void noteWritesThatMayEnd()
    {
        QList<PostedComment> arrived = simplified(postedComments());
        for (const PostedComment &sent : std::exchange(expected, {})) {
            if (arrived.removeOne(sent))
                expected += sent;
            else
                possible += sent;
        }
    }

    static QList<PostedComment> simplified(QList<PostedComment> comments)
    {
        for (PostedComment &comment : comments)
            comment.text = comment.text.simplified();
        return comments;
    }

    void step()
    {
        const int which = below(16);
        history += u"%1: %2"_s.arg(which).arg(told().text.simplified());
        switch (which) {
        case 0:
        case 1:
        case 2:
        case 3:
            return typeAWord();
        case 4:
        case 5:
            return switchReaders();
        case 6:
        case 7:
            return sendByKey();
        case 8:
            return sendByButton();
        case 9:
            return showAnother();
        case 10:
            return useTheOtherWindow();
        case 11:
            click(QAccessible::Button, u"Reprendre le brouillon"_s);
            return;
        case 12:
            return meetAFault();
        case 13:
            return site.server().release();
        case 14:
            return oneIn(6) ? changeSession() : store().refresh();
        default:
            return clock->advance(1s);
        }
    }

    /// The steps, each with the text before it.
    QStringList history;
    QRandomGenerator random{quint32(GetParam())};
    /// Two issues of the service project, and one of another project.
    QStringList notedKeys;
    QString ownKey;
    int lastWord = 0;
    /// Whether the user was told that a word is in an internal note.
    QMap<QString, bool> internal;
    QHash<QQuickWindow *, QString> lastSent;
    /// What the user has sent, and what the site received once or not at all.
    QList<PostedComment> expected;
    QList<PostedComment> possible;
};

TEST_P(InternalNotes, LeaveOnlyWithTheirMarkingAndEachCommentOnce)
{
    for (int i = 0; i < 70 && !HasFailure(); ++i) {
        step();
        pump();
        check(i);
    }
    site.recover();
    site.server().release();
    EXPECT_TRUE(areWritesOver());
    QList<PostedComment> posted = simplified(postedComments());
    for (const PostedComment &sent : expected)
        EXPECT_TRUE(posted.removeOne(sent))
            << sent.key.toStdString() << ": " << sent.text.toStdString() << sent.isInternal;
    for (const PostedComment &more : posted)
        EXPECT_TRUE(possible.removeOne(more))
            << more.key.toStdString() << ": " << more.text.toStdString() << more.isInternal;
    if (HasFailure())
        ADD_FAILURE() << history.join(u'\n').toStdString();
}

INSTANTIATE_TEST_SUITE_P(Seeds, InternalNotes, testing::Range(1, 1 + seedCount()));
