#pragma once

#include <QImage>
#include <QString>

/// A picture on the disk that a test compares what is drawn with, at the scale of the running program.
class StoredPicture
{
public:
    StoredPicture(const QString &name, bool dark);

    /// Nothing for a picture that looks like the stored one; otherwise where it differs, and where it was left to be
    /// looked at. With the argument "--write" it stores the picture instead.
    std::string differenceTo(const QImage &drawn) const;
    /// As it is stored; null if it is not.
    QImage image() const { return QImage(m_file); }

private:
    QString m_file;
};
