#pragma once

#include "state/Uploads.h"

#include <QMetaType>
#include <QtQml/qqml.h>
#include <QtQml/qqmlregistration.h>

/// The tile of a file of a running upload. All files of an upload are sent in one request, so their tiles show the same
/// progress, and are cancelled together.
struct UploadFacts
{
    Q_GADGET
    QML_VALUE_TYPE(uploadFacts)
    /// How much was sent is known.
    Q_PROPERTY(bool hasFraction READ hasFraction CONSTANT FINAL)
    /// From 0 to 1; 0 while it is not known.
    Q_PROPERTY(double fraction READ fraction CONSTANT FINAL)
    /// "Envoyé à 40 %", in steps of ten, because a screen reader says each change. Empty while it is not known.
    Q_PROPERTY(QString progressText READ progressText CONSTANT FINAL)
    /// For a screen reader: "Envoi de notes.txt".
    Q_PROPERTY(QString spokenName READ spokenName CONSTANT FINAL)
    /// The name of the button that cancels it.
    Q_PROPERTY(QString cancelName READ cancelName CONSTANT FINAL)

public:
    RunningUpload upload;
    /// The position of the file in the upload.
    int index = 0;

    bool hasFraction() const { return upload.fraction().has_value(); }
    double fraction() const { return upload.fraction().value_or(0); }
    QString progressText() const;
    QString spokenName() const;
    QString cancelName() const;

    bool operator==(const UploadFacts &) const = default;
};
