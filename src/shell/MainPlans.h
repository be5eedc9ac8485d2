#pragma once

#include "shell/MainPlan.h"

/// `mainPlan`, for QML.
class MainPlans : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    using QObject::QObject;

    Q_INVOKABLE static MainPlan plan(int window, int sidebar, int inspector, bool hasInspector)
    {
        return mainPlan({window, sidebar, inspector, hasInspector});
    }
};
