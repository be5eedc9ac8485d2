#pragma once

#include <QImage>
#include <QString>

/// A reference picture on disk with which a test compares its rendering, at the scale of the running program.
class StoredPicture
{
public:
    StoredPicture(const QString &name, bool dark);

    /// Empty if the picture looks like the stored one. Otherwise it describes where the pictures differ and where the
    /// drawn one was saved for inspection. With the argument "--write" it stores the picture instead.
    std::string differenceTo(const QImage &drawn) const;
    /// The stored picture, or null if there is none.
    QImage image() const { return QImage(m_file); }

private:
    QString m_file;
};
