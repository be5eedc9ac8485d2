#include "screens/issues/DrawnText.h"

#include "screens/issues/face/TextMeasure.h"

QRectF DrawnText::box() const
{
    const double width = TextMeasure::width(caption.text, caption.font);
    return face->mapRectToScene(QRectF(caption.place, QSizeF(width, caption.height)));
}

std::optional<DrawnText> drawnText(QQuickItem *root, const QString &words)
{
    if (!root->isVisible())
        return std::nullopt;
    if (auto *face = qobject_cast<IssueFace *>(root)) {
        for (const Caption &caption : face->captions().captions()) {
            if (caption.text == words)
                return DrawnText{face, caption};
        }
    }
    for (auto *child : root->childItems()) {
        if (auto found = drawnText(child, words))
            return found;
    }
    return std::nullopt;
}
