#include "screens/Bench.h"

#include <QClipboard>
#include <QDropEvent>
#include <QGuiApplication>
#include <QMimeData>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

void setClipboardText(const QString &text)
{
    QGuiApplication::clipboard()->setText(text);
}

void setClipboardFile()
{
    auto content = std::make_unique<QMimeData>();
    content->setUrls({QUrl(u"file:///tmp/journal.txt"_s), QUrl(u"https://exemple.fr/a"_s)});
    content->setText(u"/tmp/journal.txt"_s);
    QGuiApplication::clipboard()->setMimeData(content.release());
}

} // namespace

class TextsTest : public testing::Test
{
protected:
    void show(const QString &qml)
    {
        field = bench.show(qml);
        ASSERT_NE(field, nullptr) << bench.warnings();
    }
    void TearDown() override { EXPECT_EQ(bench.warnings(), ""); }

    QString text() const { return field->property("text").toString(); }
    QQuickItem *editor() { return bench.window().activeFocusItem(); }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::keyClick(&bench.window(), key, modifiers);
    }
    void type(const char *letters)
    {
        for (; *letters; ++letters)
            QTest::keyClick(&bench.window(), *letters);
    }
    /// Drops content on the middle of the field. True if it was accepted.
    bool drop(const QMimeData &content)
    {
        const QPoint at(40, 20);
        QDragEnterEvent enter(at, Qt::CopyAction, &content, Qt::LeftButton, {});
        QCoreApplication::sendEvent(&bench.window(), &enter);
        QDropEvent event(at, Qt::CopyAction, &content, Qt::LeftButton, {});
        QCoreApplication::sendEvent(&bench.window(), &event);
        return event.isAccepted();
    }

    Bench bench;
    QQuickItem *field = nullptr;
};

TEST_F(TextsTest, AnInsertionReplacesTheSelectionAndIsUndoneInOneStep)
{
    show(u"InputArea { name: 'Texte'; focus: true }"_s);
    type("un deux trois");
    QMetaObject::invokeMethod(field, "select", Q_ARG(int, 3), Q_ARG(int, 7));
    EXPECT_EQ(field->property("selectionStart").toInt(), 3);
    EXPECT_EQ(field->property("selectionEnd").toInt(), 7);
    QMetaObject::invokeMethod(field, "insert", Q_ARG(QString, u"@Nora "_s));
    EXPECT_EQ(text(), u"un @Nora  trois"_s);
    EXPECT_EQ(field->property("cursorPosition").toInt(), 9);
    press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(text(), u"un deux trois"_s);
}

TEST_F(TextsTest, AReplacementNeedsNoSelection)
{
    show(u"InputArea { name: 'Texte'; focus: true }"_s);
    type("bonjour @no et");
    QMetaObject::invokeMethod(field, "replace", Q_ARG(int, 8), Q_ARG(int, 11),
                              Q_ARG(QString, u"@Nora Valmy"_s));
    EXPECT_EQ(text(), u"bonjour @Nora Valmy et"_s);
    EXPECT_EQ(field->property("cursorPosition").toInt(), 19);
}

TEST_F(TextsTest, TheCaretIsFoundInTheWindowWhereverTheFieldIsAndHoweverItIsScrolled)
{
    show(u"Item { property alias area: a; InputArea { id: a; x: 50; y: 30; name: 'Texte'; focus: "
         u"true; "
         "highest: 80 } }"_s);
    field = field->property("area").value<QQuickItem *>();
    const auto caret = [this] {
        QRectF found;
        QMetaObject::invokeMethod(field, "caretInWindow", Q_RETURN_ARG(QRectF, found));
        return found;
    };
    EXPECT_DOUBLE_EQ(caret().x(), 60);
    EXPECT_DOUBLE_EQ(caret().y(), 37);
    field->setProperty("text", QStringList(40, u"Une ligne"_s).join(u'\n'));
    press(Qt::Key_End, Qt::ControlModifier);
    EXPECT_GT(caret().x(), 80);
    EXPECT_LT(caret().bottom(), 30 + 80);
}

TEST_F(TextsTest, AKeyThatTheScreenTakesDoesNotReachTheText)
{
    show(
        u"InputArea { name: 'Texte'; focus: true; "
        "onKeyPressed: event => event.accepted = event.key === Qt.Key_Return || event.key === Qt.Key_Tab }"_s);
    type("a");
    press(Qt::Key_Return);
    press(Qt::Key_Tab);
    type("b");
    EXPECT_EQ(text(), u"ab"_s);
}

TEST_F(TextsTest, AReadOnlyAreaIsSelectedAndNotChanged)
{
    show(u"InputArea { name: 'Texte'; focus: true; text: 'fixe'; readOnly: true }"_s);
    type("a");
    EXPECT_EQ(text(), u"fixe"_s);
    press(Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(field->property("selectionEnd").toInt(), 4);
    EXPECT_TRUE(Bench::accessible(editor())->state().readOnly);
}

TEST_F(TextsTest, PastedFilesAreReportedAndPastedTextIsInserted)
{
    show(u"InputArea { name: 'Texte'; focus: true; takesFiles: true }"_s);
    QSignalSpy given(field, SIGNAL(filesGiven(QVariant)));
    setClipboardFile();
    press(Qt::Key_V, Qt::ControlModifier);
    ASSERT_EQ(given.count(), 1);
    EXPECT_EQ(given.first().first().value<QVariant>().value<QList<QUrl>>(),
              QList<QUrl>{QUrl(u"file:///tmp/journal.txt"_s)});
    EXPECT_EQ(text(), QString());
    setClipboardText(u"bonjour"_s);
    press(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(given.count(), 1);
    EXPECT_EQ(text(), u"bonjour"_s);
}

TEST_F(TextsTest, DroppedFilesAreReportedAndDroppedTextIsRefused)
{
    show(u"InputArea { name: 'Texte'; focus: true; takesFiles: true }"_s);
    QSignalSpy given(field, SIGNAL(filesGiven(QVariant)));
    QMimeData files;
    files.setUrls({QUrl(u"file:///tmp/journal.txt"_s)});
    EXPECT_TRUE(drop(files));
    EXPECT_EQ(given.count(), 1);
    EXPECT_EQ(text(), QString());
    QMimeData words;
    words.setText(u"bonjour"_s);
    EXPECT_FALSE(drop(words));
    EXPECT_EQ(given.count(), 1);
}

TEST_F(TextsTest, ATitleGrowsOverSeveralLinesInItsFontAndReturnSubmitsIt)
{
    show(u"TitleField { width: 200; name: 'Titre'; focus: true }"_s);
    EXPECT_EQ(editor()->property("font").value<QFont>().pixelSize(), 22);
    EXPECT_EQ(editor()->property("font").value<QFont>().weight(), QFont::DemiBold);
    const qreal line = field->height();
    QSignalSpy accepted(field, SIGNAL(accepted()));
    type("prevenir avant la fin de la session");
    EXPECT_GE(field->height(), 2 * line - 1);
    press(Qt::Key_Return);
    press(Qt::Key_Enter, Qt::KeypadModifier);
    EXPECT_EQ(accepted.count(), 2);
    press(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(accepted.count(), 2);
    EXPECT_EQ(text(), u"prevenir avant la fin de la session"_s);
    EXPECT_EQ(Bench::accessible(editor())->text(QAccessible::Name), u"Titre"_s);
    EXPECT_EQ(Bench::accessible(editor())->role(), QAccessible::EditableText);
}

TEST_F(TextsTest, LineBreaksPastedIntoATitleBecomeBlanksInTheSameStepOfUndo)
{
    show(u"TitleField { width: 400; name: 'Titre'; focus: true }"_s);
    type("a ");
    setClipboardText(u"un\ndeux\ntrois"_s);
    press(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(text(), u"a un deux trois"_s);
    EXPECT_EQ(field->property("cursorPosition").toInt(), 15);
    press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(text(), u"a "_s);
}

TEST_F(TextsTest, EveryLineOfATitleIsDrawn)
{
    show(
        u"TitleField { width: 200; name: 'Titre'; text: 'prevenir avant la fin de la session' }"_s);
    const QImage picture = bench.window().grabWindow();
    const auto isInked = [&](int from, int to) {
        for (int y = from; y < to; ++y) {
            for (int x = 0; x < picture.width(); ++x) {
                if (qGray(picture.pixel(x, y)) < 100)
                    return true;
            }
        }
        return false;
    };
    const int bottom = static_cast<int>(field->height() * picture.devicePixelRatio());
    EXPECT_TRUE(isInked(0, bottom / 2));
    EXPECT_TRUE(isInked(bottom / 2, bottom));
}
