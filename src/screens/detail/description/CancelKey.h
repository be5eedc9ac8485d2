#pragma once

#include "screens/kit/layers/KeyHandler.h"

/// Escape in an editor that can be cancelled. The press does not reach the layer around the editor.
class CancelKey : public KeyHandler
{
    Q_OBJECT
    QML_ELEMENT

public:
    using KeyHandler::KeyHandler;

    bool takes(const QKeyEvent &press) override;

Q_SIGNALS:
    void triggered();
};
