#include "screens/composer/MentionKeys.h"

#include <optional>

namespace {

std::optional<CommentDraft::Key> draftKey(int key)
{
    switch (key) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Tab:
        return CommentDraft::Key::Accept;
    case Qt::Key_Up:
        return CommentDraft::Key::Up;
    case Qt::Key_Down:
        return CommentDraft::Key::Down;
    case Qt::Key_Escape:
        return CommentDraft::Key::Dismiss;
    default:
        return std::nullopt;
    }
}

} // namespace

void MentionKeys::setComposition(Composition *composition)
{
    if (m_composition == composition)
        return;
    m_composition = composition;
    Q_EMIT compositionChanged();
}

bool MentionKeys::takes(const QKeyEvent &press)
{
    const auto key = draftKey(press.key());
    return m_composition && key && !press.modifiers().testFlag(Qt::ControlModifier) &&
           m_composition->take(*key);
}

bool MentionKeys::repeats(const QKeyEvent &press) const
{
    return press.key() == Qt::Key_Down || press.key() == Qt::Key_Up;
}
