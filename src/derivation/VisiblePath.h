#pragma once

#include <QStringList>

#include <functional>

/// The keys of what a layout shows, in reading order: the path of the arrow keys. A look at it costs no pass over it.
class VisiblePath
{
public:
    struct Access
    {
        qsizetype size = 0;
        std::function<QString(qsizetype)> keyAt;
        /// -1 for a key that is not shown.
        std::function<qsizetype(const QString &)> indexOf;
    };

    explicit VisiblePath(Access access) : m_access(std::move(access)) {}
    /// The path along a list of keys.
    VisiblePath(const QStringList &keys);

    qsizetype size() const { return m_access.size; }
    bool isEmpty() const { return size() == 0; }
    /// The key at a place, which must be on the path.
    QString operator[](qsizetype place) const { return m_access.keyAt(place); }
    QString front() const { return m_access.keyAt(0); }
    /// -1 for a key that is not shown.
    qsizetype indexOf(const QString &key) const { return m_access.indexOf(key); }

private:
    Access m_access;
};
