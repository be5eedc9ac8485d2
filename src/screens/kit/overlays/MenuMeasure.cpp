#include "screens/kit/overlays/MenuMeasure.h"

#include <QQuickItem>

#include <algorithm>

namespace {

QList<QQuickItem *> rowsOf(QObject *menu)
{
    QList<QQuickItem *> rows;
    const int count = menu->property("count").toInt();
    for (int i = 0; i < count; ++i) {
        QQuickItem *row = nullptr;
        QMetaObject::invokeMethod(menu, "itemAt", Q_RETURN_ARG(QQuickItem *, row), Q_ARG(int, i));
        if (row)
            rows.append(row);
    }
    return rows;
}

bool isTicked(const QQuickItem *row)
{
    return row->property("checked").toBool();
}

bool canBeTicked(const QQuickItem *row)
{
    return row->property("hasMarkRoom").isValid();
}

} // namespace

qreal MenuMeasure::widest(QObject *menu) const
{
    qreal width = 0;
    for (const auto *row : rowsOf(menu))
        width = std::max(width, row->implicitWidth());
    return width;
}

void MenuMeasure::alignMarks(QObject *menu) const
{
    const auto rows = rowsOf(menu);
    const bool hasMarks = std::any_of(rows.begin(), rows.end(), isTicked);
    for (auto *row : rows) {
        if (canBeTicked(row))
            row->setProperty("hasMarkRoom", hasMarks);
    }
}
