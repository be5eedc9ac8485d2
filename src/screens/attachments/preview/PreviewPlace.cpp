#include "screens/attachments/preview/PreviewPlace.h"

#include <algorithm>

QRect previewPlace(QSize wanted, const QRect &window, const QRect &screen)
{
    const QSize size = wanted.boundedTo(screen.size());
    const int x = window.x() + (window.width() - size.width()) / 2;
    const int y = window.y() + (window.height() - size.height()) / 2;
    const int farthestX = screen.x() + screen.width() - size.width();
    const int farthestY = screen.y() + screen.height() - size.height();
    return {{std::clamp(x, screen.x(), farthestX), std::clamp(y, screen.y(), farthestY)}, size};
}
