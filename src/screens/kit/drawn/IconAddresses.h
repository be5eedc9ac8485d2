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

/// Creates the addresses of the drawn pictures, which the kit's components show. Sizes are in logical pixels.
class IconAddresses : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    Q_INVOKABLE QUrl status(const IssueStatus &status, qreal size, const QColor &accent) const;
    Q_INVOKABLE QUrl priority(Model::PriorityLevel level, qreal size, const QColor &tint) const;
    /// The picture has the side `size` + 2, plus a margin of `symbolBorder` of its symbol's side.
    Q_INVOKABLE QUrl type(const IssueType &type, qreal size) const;
    Q_INVOKABLE QUrl project(const Project &project, qreal size) const;
    /// The coloured disc with initials that represents a person without a photograph.
    Q_INVOKABLE QUrl avatar(const JiraUser &user, qreal size) const;
    /// The address of a person's photograph. Empty if there is none.
    Q_INVOKABLE QUrl avatarAddress(const JiraUser &user) const;
    Q_INVOKABLE QUrl nobody(qreal size) const;
    Q_INVOKABLE QUrl spinner(qreal size, const QColor &color) const;
    /// The picture has the side `size` + 2 × `glyphMargin`.
    Q_INVOKABLE QUrl glyph(qreal size) const;
    Q_INVOKABLE int glyphMargin(qreal size) const;

    /// A symbol, with a margin of `symbolBorder` around its square of `symbolSide`.
    Q_INVOKABLE QUrl symbol(const QString &name, qreal fontSize, const QString &weight,
                            const QColor &color) const;
    Q_INVOKABLE int symbolSide(qreal fontSize) const;
    Q_INVOKABLE int symbolBorder(int side) const;

    /// The name of a priority for screen readers.
    Q_INVOKABLE QString priorityName(Model::PriorityLevel level) const;
};
