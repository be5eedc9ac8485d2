#pragma once

#include "desktop/Activation.h"
#include "desktop/IssueFinder.h"

#include <QVariantMap>

/// The interface by which GNOME Shell searches in programs.
class SearchProvider : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.gnome.Shell.SearchProvider2")

public:
    /// The finder must outlive this object.
    explicit SearchProvider(IssueFinder &finder);

    Q_SCRIPTABLE QStringList GetInitialResultSet(const QStringList &terms);
    Q_SCRIPTABLE QStringList GetSubsearchResultSet(const QStringList &previous,
                                                   const QStringList &terms);
    /// Unknown ids are left out, and so are those behind the first `mostPaletteIssues`.
    Q_SCRIPTABLE QList<QVariantMap> GetResultMetas(const QStringList &ids);
    /// Opens the window of the issue. Unknown ids are ignored.
    Q_SCRIPTABLE void ActivateResult(const QString &id, const QStringList &terms, uint time);
    /// Opens the palette.
    Q_SCRIPTABLE void LaunchSearch(const QStringList &terms, uint time);

Q_SIGNALS:
    void asked(const Activation &activation, const QByteArray &request);

private:
    IssueFinder &m_finder;
};
