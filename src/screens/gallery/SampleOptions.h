#pragma once

#include "screens/options/OptionSource.h"

#include <QtQml/qqmlregistration.h>

/// Sample options for the gallery.
class SampleOptions : public OptionSource
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(Kind kind MEMBER m_kind NOTIFY itemsChanged FINAL)

public:
    enum Kind { People, Labels, Statuses };
    Q_ENUM(Kind)

    using OptionSource::OptionSource;

    QList<OptionItem> items() const override;
    void run(const OptionItem &) override {}
    bool canCreate() const override { return m_kind == Labels; }
    QString createLabel(const QString &candidate) const override
    {
        return QStringLiteral("Créer l'étiquette « %1 »").arg(candidate);
    }

private:
    Kind m_kind = People;
};
