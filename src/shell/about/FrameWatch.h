#pragma once

#include "shell/about/KeyFrames.h"

#include <QObject>

class About;
class QQuickWindow;

/// Reports to `About` how long a window needs from a key press to the frame that shows its effect. It belongs to the
/// window. Modifier keys alone are not measured.
class FrameWatch : public QObject
{
    Q_OBJECT

public:
    FrameWatch(QQuickWindow &window, About &about);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void showFrame();

    About &m_about;
    KeyFrames m_frames;
};
