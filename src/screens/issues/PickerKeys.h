#pragma once

#include "screens/issues/Picker.h"

#include <QPointer>
#include <QQuickWindow>
#include <QtQml/qqmlregistration.h>

/// Gives the open picker every key press of a window before the search field sees it, and takes the focus back to where
/// it was when the picker closes.
class PickerKeys : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QQuickWindow *window MEMBER m_window NOTIFY windowChanged FINAL REQUIRED)
    Q_PROPERTY(Picker *picker READ picker WRITE setPicker NOTIFY pickerChanged FINAL REQUIRED)
    /// What has the focus while the picker is open.
    Q_PROPERTY(QQuickItem *field MEMBER m_field NOTIFY fieldChanged FINAL REQUIRED)

public:
    using QObject::QObject;

    Picker *picker() const { return m_picker; }
    void setPicker(Picker *picker);

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    void windowChanged();
    void pickerChanged();
    void fieldChanged();

private:
    void followPicker();
    void begin();
    void end();

    QPointer<QQuickWindow> m_window;
    QPointer<Picker> m_picker;
    QPointer<QQuickItem> m_field;
    QPointer<QQuickItem> m_returnTo;
};
