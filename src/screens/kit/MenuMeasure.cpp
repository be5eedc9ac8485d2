#include "screens/kit/MenuMeasure.h"

#include <QQuickItem>

qreal MenuMeasure::widest(QObject *menu) const
{
    qreal width = 0;
    const int count = menu->property("count").toInt();
    for (int i = 0; i < count; ++i) {
        QQuickItem *row = nullptr;
        QMetaObject::invokeMethod(menu, "itemAt", Q_RETURN_ARG(QQuickItem *, row), Q_ARG(int, i));
        if (row)
            width = std::max(width, row->implicitWidth());
    }
    return width;
}
