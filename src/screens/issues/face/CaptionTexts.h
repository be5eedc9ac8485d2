#pragma once

#include "screens/issues/face/Caption.h"

#include <QList>
#include <QPointer>
#include <QQmlComponent>
#include <QQuickItem>

/// The texts of a row or a card: items made from one component as captions need them, and used again for others. Texts of
/// a repeater, each with its bindings, would take several times as long to make.
class CaptionTexts
{
public:
    /// Shows these in place of those before, in the item, which owns the texts.
    void show(const QList<Caption> &captions, QQmlComponent *component, QQuickItem &parent);

private:
    QQuickItem *textAt(qsizetype index, QQmlComponent &component, QQuickItem &parent);

    QList<QPointer<QQuickItem>> m_texts;
    QList<Caption> m_shown;
};
