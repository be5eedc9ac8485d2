#pragma once

#include "model/IssueStatus.h"
#include "model/IssueType.h"
#include "model/JiraUser.h"
#include "model/Project.h"

#include <QColor>
#include <QList>
#include <QObject>
#include <QSizeF>
#include <QUrl>
#include <QtQml/qqmlregistration.h>

/// Addresses of the drawn pictures, made from values; the kit's components show them. Sizes are logical pixels.
class Pictures : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    Q_INVOKABLE QUrl status(const IssueStatus &status, qreal size, const QColor &accent) const;
    Q_INVOKABLE QUrl priority(Model::PriorityLevel level, qreal size, const QColor &tint) const;
    /// Of side `size` + 2, and `symbolBorder` of its symbol's side round it.
    Q_INVOKABLE QUrl type(const IssueType &type, qreal size) const;
    Q_INVOKABLE QUrl project(const Project &project, qreal size) const;
    /// The coloured disc with initials that stands for a person without a picture.
    Q_INVOKABLE QUrl avatar(const JiraUser &user, qreal size) const;
    /// Where a person's own picture is to be had; empty without one.
    Q_INVOKABLE QUrl avatarAddress(const JiraUser &user) const;
    Q_INVOKABLE QUrl nobody(qreal size) const;
    Q_INVOKABLE QUrl spinner(qreal size, const QColor &color) const;
    /// Of side `size` + 2 × `glyphMargin`.
    Q_INVOKABLE QUrl glyph(qreal size) const;
    Q_INVOKABLE int glyphMargin(qreal size) const;

    /// A symbol, with `symbolBorder` round its square of `symbolSide`.
    Q_INVOKABLE QUrl symbol(const QString &name, qreal fontSize, const QString &weight,
                            const QColor &color) const;
    Q_INVOKABLE int symbolSide(qreal fontSize) const;
    Q_INVOKABLE int symbolBorder(int side) const;

    /// What screen readers call a priority.
    Q_INVOKABLE QString priorityName(Model::PriorityLevel level) const;
};
