#pragma once

#include "screens/composer/Composition.h"
#include "screens/kit/layers/KeyHandler.h"

#include <QPointer>
#include <QtQml/qqmlregistration.h>

/// The keys that work on the suggestions while the editor has the focus: Return, Enter and Tab complete the mention, the
/// arrows move the highlight, Escape hides the suggestions. With Control (Command on macOS) every key passes, so that a
/// comment can be sent while there are suggestions.
class MentionKeys : public KeyHandler
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(Composition *composition READ composition WRITE setComposition NOTIFY
                   compositionChanged FINAL REQUIRED)

public:
    using KeyHandler::KeyHandler;

    Composition *composition() const { return m_composition; }
    void setComposition(Composition *composition);

    bool takes(const QKeyEvent &press) override;
    bool repeats(const QKeyEvent &press) const override;

Q_SIGNALS:
    void compositionChanged();

private:
    QPointer<Composition> m_composition;
};
