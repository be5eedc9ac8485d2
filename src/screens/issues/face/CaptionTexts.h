#pragma once

#include "screens/issues/face/Caption.h"

#include <QList>
#include <QPointer>
#include <QQmlComponent>
#include <QQuickItem>

/// The text items of a row or a card. They are created from one component as captions need them and then reused.
/// Creating them with a repeater, each with its own bindings, would take several times as long.
class CaptionTexts
{
public:
    /// Replaces the shown captions. The texts are children of `parent`, which owns them.
    void show(const QList<Caption> &captions, QQmlComponent *component, QQuickItem &parent);

private:
    QQuickItem *textAt(qsizetype index, QQmlComponent &component, QQuickItem &parent);

    QList<QPointer<QQuickItem>> m_texts;
    QList<Caption> m_shown;
};
