#include "screens/kit/painters/SoftGradient.h"

namespace {

constexpr float whiteAtTop = 0.16F;

float lightened(float channel)
{
    return channel + (1.0F - channel) * whiteAtTop;
}

} // namespace

QLinearGradient softGradient(const QColor &color, const QRectF &box)
{
    QLinearGradient gradient(box.topLeft(), box.bottomLeft());
    gradient.setColorAt(0, QColor::fromRgbF(lightened(color.redF()), lightened(color.greenF()),
                                            lightened(color.blueF())));
    gradient.setColorAt(1, color);
    return gradient;
}
