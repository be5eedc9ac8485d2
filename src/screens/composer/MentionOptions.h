#pragma once

#include "screens/composer/Composition.h"
#include "screens/options/OptionSource.h"

#include <QPointer>
#include <QtQml/qqmlregistration.h>

/// The suggested users as rows of a list of options. A chosen row completes the mention. While nobody is suggested, the
/// last rows stay, because the list that shows them is fading out.
class MentionOptions : public OptionSource
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(Composition *composition READ composition WRITE setComposition NOTIFY
                   compositionChanged FINAL REQUIRED)
    /// The rows are being replaced: a change of the list's highlight then does not come from the user.
    Q_PROPERTY(bool isUpdating READ isUpdating NOTIFY itemsChanged FINAL)

public:
    using OptionSource::OptionSource;

    Composition *composition() const { return m_composition; }
    void setComposition(Composition *composition);

    bool isUpdating() const { return m_isUpdating; }

    QList<OptionItem> items() const override { return m_items; }
    void run(const OptionItem &item) override;

Q_SIGNALS:
    void compositionChanged();
    /// After the rows: the list must highlight this one.
    void highlightMoved(int row);

private:
    void update();

    QPointer<Composition> m_composition;
    QList<OptionItem> m_items;
    bool m_isUpdating = false;
};
