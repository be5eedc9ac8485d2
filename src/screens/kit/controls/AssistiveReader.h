#pragma once

#include <QAccessible>
#include <QObject>
#include <QtQml/qqmlregistration.h>

/// Tells QML whether a screen reader, or another program that uses the accessibility interfaces, reads this program.
/// Objects that exist only to be read are created while one does.
class AssistiveReader : public QObject, private QAccessible::ActivationObserver
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(bool isPresent READ isPresent NOTIFY isPresentChanged FINAL)

public:
    explicit AssistiveReader(QObject *parent = nullptr);
    ~AssistiveReader() override;
    Q_DISABLE_COPY_MOVE(AssistiveReader)

    static bool isPresent();

Q_SIGNALS:
    void isPresentChanged();

private:
    void accessibilityActiveChanged(bool active) override;
};
