#pragma once

#include "model/ADFNode.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>

/// Sample documents for the gallery: the description of an issue and a comment, with every kind of block.
class SampleDocuments : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(ADFNode description READ description CONSTANT FINAL)
    Q_PROPERTY(ADFNode comment READ comment CONSTANT FINAL)

public:
    using QObject::QObject;

    ADFNode description() const;
    ADFNode comment() const;
};
