#include "state/models/ToastModel.h"

#include "state/models/ShadowList.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

Toast toast(const QString &message, ToastKind kind = ToastKind::Notice)
{
    Toast result;
    result.id = QUuid::createUuidV5(QUuid(), message);
    result.message = message;
    result.symbol = u"link"_s;
    result.kind = kind;
    return result;
}

} // namespace

TEST(ToastModel, ShowsWhatAToastSays)
{
    ToastModel model;
    model.setToasts({toast(u"Lien copié"_s), toast(u"Refusé"_s, ToastKind::Error)});
    EXPECT_EQ(model.index(0).data(ToastModel::MessageRole), u"Lien copié"_s);
    EXPECT_EQ(model.index(0).data(ToastModel::SymbolRole), u"link"_s);
    EXPECT_EQ(model.index(0).data(ToastModel::IsErrorRole), false);
    EXPECT_EQ(model.index(1).data(ToastModel::IsErrorRole), true);
    EXPECT_EQ(model.index(1).data(ToastModel::IdRole).toUuid(), toast(u"Refusé"_s).id);
}

TEST(ToastModel, ATrickInANameIsVisibleAndLineBreaksStay)
{
    ToastModel model;
    model.setToasts({toast(u"« facture\u202Egpj.exe »\njoint"_s)});
    EXPECT_EQ(model.index(0).data(ToastModel::MessageRole), u"« facture[U+202E]gpj.exe »\njoint"_s);
}

TEST(ToastModel, TheLinesOfASiteStayLines)
{
    ToastModel model;
    model.setToasts({toast(u"Refusé\tpar le site\r\n"_s)});
    EXPECT_EQ(model.index(0).data(ToastModel::MessageRole), u"Refusé par le site\n"_s);
}

TEST(ToastModel, AToastThatGoesLeavesTheOthersAlone)
{
    ToastModel model;
    model.setToasts({toast(u"a"_s), toast(u"b"_s), toast(u"c"_s)});
    ShadowList shadow(model, ToastModel::MessageRole);
    const QPersistentModelIndex last = model.index(2);
    shadow.forget();
    model.setToasts({toast(u"a"_s), toast(u"c"_s)});
    EXPECT_EQ(shadow.structural, 1);
    EXPECT_EQ(last.row(), 1);
}

TEST(ToastModel, TwoToastsWithTheSameMessageAreTwoRows)
{
    Toast twin = toast(u"a"_s);
    twin.id = QUuid::createUuidV5(QUuid(), u"twin"_s);
    ToastModel model;
    model.setToasts({toast(u"a"_s), twin});
    EXPECT_EQ(model.rowCount(), 2);
}
