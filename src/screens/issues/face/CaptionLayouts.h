#pragma once

#include "screens/issues/face/Caption.h"

#include <QList>
#include <QTextLayout>

#include <memory>
#include <vector>

class QSGNode;

/// The captions of a row or a card, laid out. Text items, one for each caption, would take several times as long to
/// create and to draw.
class CaptionLayouts
{
public:
    /// Replaces the captions. Only those whose text, font or width changed are laid out again.
    void set(const QList<Caption> &captions);
    const QList<Caption> &captions() const { return m_captions; }
    /// Grows with each change, from 0.
    quint64 version() const { return m_version; }
    /// Adds all captions to a node of `TextNode`.
    void addTo(QSGNode &node) const;

private:
    QList<Caption> m_captions;
    std::vector<std::unique_ptr<QTextLayout>> m_layouts;
    quint64 m_version = 0;
};
