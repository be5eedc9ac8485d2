#include "model/ADFNode.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

ADFNode paragraph(const QString &text)
{
    ADFNode leaf{u"text"_s, text, {}, QList{ADFMark{u"strong"_s, {}}}, {}, {}};
    return {u"paragraph"_s, {}, QList{leaf}, {}, ADFAttributes{{u"level"_s, 2}}, {}};
}

TEST(ADFNode, ComparesAndHashesTheWholeTree)
{
    const ADFNode document{u"doc"_s, {}, QList{paragraph(u"un"_s), paragraph(u"deux"_s)},
                           {},       {}, 1};
    const ADFNode same{u"doc"_s, {}, QList{paragraph(u"un"_s), paragraph(u"deux"_s)}, {}, {}, 1};
    EXPECT_EQ(document, same);
    EXPECT_EQ(qHash(document), qHash(same));
    ADFNode other = document;
    other.content->last().content->first().marks->first().attrs = ADFAttributes();
    EXPECT_NE(document, other);
    EXPECT_NE(qHash(document), qHash(other));
}

TEST(ADFNode, TellsAbsentFromEmptyInEveryField)
{
    const ADFNode bare{u"text"_s, {}, {}, {}, {}, {}};
    EXPECT_NE(bare, (ADFNode{u"text"_s, QString(), {}, {}, {}, {}}));
    EXPECT_NE(bare, (ADFNode{u"text"_s, {}, QList<ADFNode>(), {}, {}, {}}));
    EXPECT_NE(bare, (ADFNode{u"text"_s, {}, {}, QList<ADFMark>(), {}, {}}));
    EXPECT_NE(bare, (ADFNode{u"text"_s, {}, {}, {}, ADFAttributes(), {}}));
    EXPECT_NE(bare, (ADFNode{u"text"_s, {}, {}, {}, {}, 0}));
    EXPECT_NE(qHash(bare), qHash(ADFNode{u"text"_s, {}, QList<ADFNode>(), {}, {}, {}}));
}

TEST(ADFNode, CopyDoesNotShareLaterChanges)
{
    ADFNode node = paragraph(u"un"_s);
    const ADFNode copy = node;
    node.content->first().text = u"deux"_s;
    EXPECT_EQ(copy, paragraph(u"un"_s));
}

} // namespace
