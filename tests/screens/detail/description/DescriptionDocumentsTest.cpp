#include "richtext/ADFMarkdown.h"
#include "richtext/ADFQueries.h"
#include "screens/detail/description/DescriptionWindow.h"
#include "screens/detail/description/Descriptions.h"

#include <QTest>

using namespace Qt::StringLiterals;

/// The warning about what Markdown loses, and documents of all sizes and kinds.
class DescriptionDocuments : public DescriptionWindow
{
};

// Losses --------------------------------------------------------------------------------------------------------------

TEST_F(DescriptionDocuments, TheCaptionSaysWhatMarkdownExpresses)
{
    open(described(u"Bonjour"_s));
    edit();
    find(QAccessible::StaticText,
         u"Markdown : **gras**, *italique*, `code`, - [ ] tâches, @Prénom Nom"_s);
    EXPECT_FALSE(has(QAccessible::StaticText, u"Tableaux et médias seront simplifiés"_s));
}

TEST_F(DescriptionDocuments, TheWarningTellsItsLossesToScreenReadersAndThePointer)
{
    Issue issue = described({});
    issue.description = Descriptions::rich();
    open(issue);
    edit();
    const Spoken warning = find(QAccessible::StaticText, u"Tableaux et médias seront simplifiés"_s);
    EXPECT_EQ(warning.description, u"1 image, 1 tableau"_s);
    QTest::mouseMove(&bench.window(), warning.box.center());
    EXPECT_TRUE(
        QTest::qWaitFor([this] { return has(QAccessible::ToolTip, u"1 image, 1 tableau"_s); }));
}

TEST_F(DescriptionDocuments, TheKeyboardReachesTheLosses)
{
    Issue issue = described({});
    issue.description = Descriptions::rich();
    open(issue);
    edit();
    press(Qt::Key_Tab);
    EXPECT_EQ(focusedName(), u"Tableaux et médias seront simplifiés"_s);
    EXPECT_TRUE(
        QTest::qWaitFor([this] { return has(QAccessible::ToolTip, u"1 image, 1 tableau"_s); }));
}

TEST_F(DescriptionDocuments, NothingOverlapsInANarrowInspector)
{
    Issue issue = described({});
    issue.description = Descriptions::rich();
    open(issue);
    section()->setWidth(332);
    edit();
    const QList<QRect> boxes{
        find(Text, u"Description"_s).box,
        find(QAccessible::StaticText, u"Markdown"_s).box,
        find(QAccessible::StaticText, u"Tableaux"_s).box,
        find(Button, u"Annuler"_s).box,
        find(Button, u"Enregistrer"_s).box,
    };
    for (qsizetype i = 0; i < boxes.size(); ++i) {
        EXPECT_GE(boxes[i].left(), 20) << i;
        EXPECT_LE(boxes[i].right(), 352) << i;
        for (qsizetype j = 0; j < i; ++j)
            EXPECT_FALSE(boxes[i].intersects(boxes[j])) << i << " and " << j;
    }
}

// Sizes and hostile documents -----------------------------------------------------------------------------------------

TEST_F(DescriptionDocuments, ALongDescriptionIsEditedAndSavedWhole)
{
    QString markdown;
    while (markdown.size() < 20000)
        markdown += u"Un paragraphe de plus, avec des mots.\n\n"_s;
    markdown = markdown.trimmed();
    open(described(markdown));
    edit();
    EXPECT_EQ(text(), markdown);
    press(Qt::Key_End, Qt::ControlModifier);
    type(u" Fin."_s);
    settle();
    EXPECT_LE(section()->implicitHeight(), 320);
    save();
    EXPECT_TRUE(shown().endsWith(u"mots. Fin."_s));
    EXPECT_EQ(shown().size(), ADF::plainText(ADFMarkdown::document(markdown)).size() + 5);
}

TEST_F(DescriptionDocuments, NoBreakSpacesAreSaved)
{
    const QString price = u"Prix\u00a0: 3\u00a0€"_s;
    open(described(price));
    edit();
    press(Qt::Key_End);
    type(u"\u00a0!"_s);
    save();
    EXPECT_EQ(shown(), price + u"\u00a0!"_s);
}

TEST_F(DescriptionDocuments, HostileDocumentsAreShownAndEdited)
{
    ADFNode deep = Descriptions::text(u"fond"_s);
    for (int i = 0; i < 200; ++i)
        deep = Descriptions::node(i % 2 ? u"panel"_s : u"inconnu"_s, {deep});
    const QList<ADFNode> documents{
        Descriptions::node(u"doc"_s, {deep}),
        Descriptions::node(u"doc"_s, {Descriptions::node(u"table"_s, {})}),
        ADFMarkdown::document(u"<img src=x> <b>a</b> \u202Egpj.exe\u202C \u0000 \u2028 fin"_s),
        ADFMarkdown::document(QString(20000, u'm')),
    };
    open(described({}));
    for (const ADFNode &document : documents) {
        Issue issue = described({});
        issue.description = document;
        refresh(issue);
        edit();
        press(Qt::Key_End, Qt::ControlModifier);
        type(u"!"_s);
        EXPECT_TRUE(text().endsWith(u'!'));
        press(Qt::Key_Escape);
        EXPECT_FALSE(isEditing());
    }
}
