#include "screens/documents/view/DocumentBench.h"

using namespace Qt::StringLiterals;
using namespace SampleTrees;

class SpokenDocument : public DocumentWindow
{
protected:
    QAccessibleInterface &document()
    {
        auto *found = QAccessible::queryAccessibleInterface(reader);
        if (!found)
            throw std::runtime_error("no accessible interface");
        return *found;
    }
    /// "role name" of the children, such as "Heading Titre".
    static QStringList children(QAccessibleInterface &of)
    {
        QStringList found;
        for (int i = 0; i < of.childCount(); ++i) {
            auto *child = of.child(i);
            const auto role = QMetaEnum::fromType<QAccessible::Role>().valueToKey(child->role());
            found.append(
                (QString::fromLatin1(role) + u' ' + child->text(QAccessible::Name)).trimmed());
        }
        return found;
    }
};

TEST_F(SpokenDocument, IsADocumentWithItsNameBelowTheWindow)
{
    show({paragraph(u"a"_s)});
    EXPECT_EQ(document().role(), QAccessible::Document);
    EXPECT_EQ(document().text(QAccessible::Name), u"Description"_s);
    bool isFound = false;
    auto *window = QAccessible::queryAccessibleInterface(&bench.window());
    for (int i = 0; i < window->childCount(); ++i)
        isFound = isFound || window->child(i)->object() == reader;
    EXPECT_TRUE(isFound);
}

TEST_F(SpokenDocument, HasHeadingsParagraphsAndCode)
{
    show({heading(2, u"Titre"_s), paragraph(u"Texte"_s), code(u"x = 1"_s)});
    EXPECT_EQ(children(document()),
              (QStringList{u"Heading Titre"_s, u"Paragraph Texte"_s, u"Grouping Code"_s}));
    EXPECT_EQ(document().child(0)->text(QAccessible::Description), u"Titre de niveau 2"_s);
    EXPECT_EQ(children(*document().child(2)), QStringList{u"Paragraph x = 1"_s});
}

TEST_F(SpokenDocument, HasListsWithItems)
{
    show({bullets({u"a"_s, u"b"_s})});
    EXPECT_EQ(children(document()), QStringList{u"List"_s});
    EXPECT_EQ(children(*document().child(0)), (QStringList{u"ListItem •"_s, u"ListItem •"_s}));
    EXPECT_EQ(children(*document().child(0)->child(1)), QStringList{u"Paragraph b"_s});
}

TEST_F(SpokenDocument, SaysWhetherATaskIsDone)
{
    show({ADF::container(u"taskList", {task(u"a"_s, true), task(u"b"_s, false)})});
    auto *list = document().child(0);
    EXPECT_EQ(children(*list), (QStringList{u"ListItem a"_s, u"ListItem b"_s}));
    EXPECT_TRUE(list->child(0)->state().checked);
    EXPECT_FALSE(list->child(1)->state().checked);
    EXPECT_EQ(list->child(0)->text(QAccessible::Description), u"Fait"_s);
    EXPECT_EQ(list->child(1)->text(QAccessible::Description), u"À faire"_s);
}

TEST_F(SpokenDocument, HasTablesWithRowsAndCells)
{
    show(
        {ADF::container(u"table", {row(u"tableHeader", {u"Nom"_s}), row(u"tableCell", {u"a"_s})})});
    EXPECT_EQ(children(document()), QStringList{u"Table Tableau"_s});
    auto *table = document().child(0);
    EXPECT_EQ(children(*table), (QStringList{u"Row"_s, u"Row"_s}));
    EXPECT_EQ(children(*table->child(0)), QStringList{u"ColumnHeader Nom"_s});
    EXPECT_EQ(children(*table->child(1)), QStringList{u"Cell a"_s});
}

TEST_F(SpokenDocument, NamesPanelsAndQuotesInFrench)
{
    const auto panel =
        with(ADF::container(u"panel", {paragraph(u"a"_s)}), u"panelType"_s, u"warning");
    show({panel, ADF::container(u"blockquote", {paragraph(u"b"_s)})});
    EXPECT_EQ(children(document()),
              (QStringList{u"Grouping Avertissement"_s, u"Grouping Citation"_s}));
}

TEST_F(SpokenDocument, HasLinksThatCanBePressed)
{
    show({ADF::container(u"paragraph",
                         {ADF::text(u"voir "_s), link(u"ici"_s, u"https://exemple.fr"_s)})});
    auto *paragraph = document().child(0);
    EXPECT_EQ(children(*paragraph), QStringList{u"Link ici"_s});
    const QSignalSpy opened(reader, &DocumentReader::linkActivated);
    paragraph->child(0)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(opened.size(), 1);
}

TEST_F(SpokenDocument, HasExpandsThatCanBePressed)
{
    show({expand(u"Journal"_s, {paragraph(u"a"_s)})});
    EXPECT_EQ(children(document()), QStringList{u"Button Journal"_s});
    EXPECT_TRUE(document().child(0)->state().collapsed);
    document().child(0)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    frame();
    EXPECT_EQ(children(document()), (QStringList{u"Button Journal"_s, u"Paragraph a"_s}));
    EXPECT_TRUE(document().child(0)->state().expanded);
}

TEST_F(SpokenDocument, KnowsWhereItsPartsAre)
{
    show({paragraph(u"a"_s), paragraph(u"b"_s)});
    const QRect first = document().child(0)->rect();
    const QRect second = document().child(1)->rect();
    EXPECT_EQ(second.top() - first.top(), 29);
    EXPECT_EQ(document().childAt(second.center().x(), second.center().y()), document().child(1));
}

TEST_F(SpokenDocument, KnowsWhichLinkHasTheFocus)
{
    show({ADF::container(u"paragraph", {link(u"ici"_s, u"https://exemple.fr"_s)})});
    press(Qt::Key_Tab);
    EXPECT_TRUE(document().state().focused);
    press(Qt::Key_Tab);
    EXPECT_TRUE(document().child(0)->child(0)->state().focused);
    EXPECT_EQ(document().focusChild(), document().child(0)->child(0));
}

TEST_F(SpokenDocument, ALinkSaysWhereItLeadsIfItsTextSaysOtherwise)
{
    show({ADF::container(u"paragraph", {link(u"banque.fr"_s, u"https://pirate.example"_s)})});
    EXPECT_EQ(document().child(0)->child(0)->text(QAccessible::Description),
              u"Attention : le texte nomme «\u00A0banque.fr\u00A0», mais le lien mène à "
              u"«\u00A0pirate.example\u00A0».\nhttps://pirate.example"_s);
}

TEST_F(SpokenDocument, PartsKnowTheirParents)
{
    show({bullets({u"a"_s})});
    auto *list = document().child(0);
    EXPECT_EQ(list->child(0)->parent(), list);
    EXPECT_EQ(list->parent(), &document());
    EXPECT_EQ(document().indexOfChild(list), 0);
}
