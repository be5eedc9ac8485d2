#pragma once

#include <private/qquicktextarea_p.h>

/// A text area that can draw only the lines in view, for use in a `Flickable`. By itself, `TextEdit` draws all lines
/// anew after each key. It draws only those in view if its text was assigned at once and has more than 10,000
/// characters, but then omits or doubles lines after scrolls and deletions (Qt 6.4).
class LongTextArea : public QQuickTextArea
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(bool onlyInView MEMBER m_onlyInView WRITE setOnlyInView FINAL)

public:
    explicit LongTextArea(QQuickItem *parent = nullptr);

    void setOnlyInView(bool onlyInView);
    /// Draws the lines that are now in view. Call it when the view was resized; a scroll is noticed without it.
    Q_INVOKABLE void followView();

protected:
    void updatePolish() override;

private:
    bool m_onlyInView = false;
};
