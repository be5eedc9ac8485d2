#include "screens/kit/painters/TypePainter.h"

#include "screens/kit/painters/SymbolPainter.h"
#include "screens/theme/IdentityColors.h"

#include <QPainter>

using namespace Qt::StringLiterals;

namespace {

QString symbolOf(Model::IssueTypeKind kind)
{
    switch (kind) {
    case Model::IssueTypeKind::Epic:
        return u"bolt.fill"_s;
    case Model::IssueTypeKind::Story:
        return u"bookmark.fill"_s;
    case Model::IssueTypeKind::Bug:
        return u"ladybug.fill"_s;
    case Model::IssueTypeKind::Task:
        return u"checkmark.square.fill"_s;
    case Model::IssueTypeKind::Subtask:
        return u"arrow.turn.down.right"_s;
    case Model::IssueTypeKind::Other:
        break;
    }
    return u"circle.fill"_s;
}

} // namespace

void paintTypeIcon(QPainter &painter, Model::IssueTypeKind kind, qreal size)
{
    const qreal side = symbolSide(size);
    const qreal inset = (size + 2 - side) / 2;
    paintSymbol(painter, {symbolOf(kind), IdentityColors::type(kind), SymbolWeight::Semibold},
                QRectF(inset, inset, side, side));
}
