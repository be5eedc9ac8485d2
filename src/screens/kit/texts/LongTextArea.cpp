#include "screens/kit/texts/LongTextArea.h"

#include <private/qquicktextedit_p_p.h>

LongTextArea::LongTextArea(QQuickItem *parent) : QQuickTextArea(parent) {}

void LongTextArea::setOnlyInView(bool onlyInView)
{
    m_onlyInView = onlyInView;
    followView();
}

void LongTextArea::followView()
{
    QQuickTextEditPrivate::get(this)->updateType = QQuickTextEditPrivate::UpdatePaintNode;
    polish();
    update();
}

void LongTextArea::updatePolish()
{
    QQuickTextArea::updatePolish();
    // The base class changes the flag whenever a text is assigned.
    setFlag(ItemObservesViewport, m_onlyInView);
    auto *state = QQuickTextEditPrivate::get(this);
    // It is mistaken about the lines that it has already drawn, so all lines in view are drawn anew.
    if (m_onlyInView && state->updateType == QQuickTextEditPrivate::UpdatePaintNode)
        state->updateType = QQuickTextEditPrivate::UpdateAll;
}
