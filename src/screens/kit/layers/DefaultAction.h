#pragma once

#include "screens/kit/layers/KeyHandler.h"

/// The action of a sheet or of an editor that Return with Control (Command on macOS) carries out, wherever the focus is
/// inside. The press never reaches the item with the focus, not even while the action is disabled: it would insert a
/// line break.
class DefaultAction : public KeyHandler
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(bool enabled MEMBER m_isEnabled NOTIFY enabledChanged FINAL)

public:
    using KeyHandler::KeyHandler;

    bool takes(const QKeyEvent &press) override;

Q_SIGNALS:
    void enabledChanged();
    void triggered();

private:
    bool m_isEnabled = true;
};
