#pragma once

#include "model/Enums.h"

#include <QColor>
#include <QQuickPaintedItem>
#include <QtQml/qqmlregistration.h>

/// A small window in one of the appearances, 92 × 60 with corners of 9. The one of the system is half light, half dark.
class ThemePicture : public QQuickPaintedItem
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(Model::AppearanceMode mode MEMBER m_mode NOTIFY changed FINAL)
    /// The colour of the chosen line in the sidebar.
    Q_PROPERTY(QColor accent MEMBER m_accent NOTIFY changed FINAL)

public:
    explicit ThemePicture(QQuickItem *parent = nullptr);

    void paint(QPainter *painter) override;

Q_SIGNALS:
    void changed();

private:
    Model::AppearanceMode m_mode = Model::AppearanceMode::System;
    QColor m_accent;
};
