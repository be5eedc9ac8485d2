#pragma once

#include "model/Enums.h"

#include <QColor>
#include <QObject>
#include <QtQml/qqmlregistration.h>

/// The identifying colours for QML. `Theme` and the kit use this type, and screens use `Theme`.
class IdentityPalette : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(QColor inProgress READ inProgress CONSTANT FINAL)
    Q_PROPERTY(QColor review READ review CONSTANT FINAL)
    Q_PROPERTY(QColor urgent READ urgent CONSTANT FINAL)
    Q_PROPERTY(QColor neutral READ neutral CONSTANT FINAL)
    Q_PROPERTY(QColor internalNote READ internalNote CONSTANT FINAL)

public:
    QColor inProgress() const;
    QColor review() const;
    QColor urgent() const;
    QColor neutral() const;
    QColor internalNote() const;

    Q_INVOKABLE QColor type(Model::IssueTypeKind kind) const;
    Q_INVOKABLE QColor label(const QString &name) const;
    Q_INVOKABLE QColor project(const QString &key) const;
    Q_INVOKABLE QColor accent(Model::AccentChoice choice) const;
    Q_INVOKABLE QColor accentFill(Model::AccentChoice choice) const;
    Q_INVOKABLE QColor accentTextOnLight(Model::AccentChoice choice) const;
    Q_INVOKABLE QColor accentTextOnDark(Model::AccentChoice choice) const;
};
