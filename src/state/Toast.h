#pragma once

#include <QObject>
#include <QString>
#include <QUuid>

/// The kind of a toast: a notice, or an error. Errors are shown longer.
enum class ToastKind { Notice, Error };

/// A small message that disappears by itself.
struct Toast
{
    Q_GADGET
    Q_PROPERTY(QUuid id MEMBER id CONSTANT FINAL)
    Q_PROPERTY(QString message MEMBER message CONSTANT FINAL)
    Q_PROPERTY(QString symbol MEMBER symbol CONSTANT FINAL)
    Q_PROPERTY(bool isError READ isError CONSTANT FINAL)

public:
    QUuid id;
    QString message;
    /// The name of the symbol beside the message.
    QString symbol;
    ToastKind kind = ToastKind::Notice;

    bool isError() const { return kind == ToastKind::Error; }

    bool operator==(const Toast &) const = default;
};
