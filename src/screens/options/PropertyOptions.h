#pragma once

#include "screens/options/OptionSource.h"
#include "state/AppStore.h"

#include <QPointer>
#include <QStringList>
#include <QtQml/qqmlregistration.h>

/// The options for one property of some issues, taken from the store.
class PropertyOptions : public OptionSource
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(AppStore *store READ store WRITE setStore NOTIFY storeChanged FINAL)
    Q_PROPERTY(Commands::PickerKind kind READ kind WRITE setKind NOTIFY kindChanged FINAL)
    /// The keys of the issues that a choice applies to.
    Q_PROPERTY(QStringList keys READ keys WRITE setKeys NOTIFY keysChanged FINAL)
    /// The placeholder of the search field.
    Q_PROPERTY(QString placeholder READ placeholder NOTIFY kindChanged FINAL)

public:
    using OptionSource::OptionSource;

    AppStore *store() const { return m_store; }
    void setStore(AppStore *store);
    PickerKind kind() const { return m_kind; }
    void setKind(PickerKind kind);
    const QStringList &keys() const { return m_keys; }
    void setKeys(const QStringList &keys);
    QString placeholder() const;

    QList<OptionItem> items() const override;
    void run(const OptionItem &item) override;
    /// New values can be created only for labels.
    bool canCreate() const override { return m_kind == PickerKind::Labels; }
    QString createLabel(const QString &candidate) const override;
    /// Adds the label to each known issue that does not have it.
    void create(const QString &label) override;

Q_SIGNALS:
    void storeChanged();
    void kindChanged();
    void keysChanged();

private:
    QPointer<AppStore> m_store;
    PickerKind m_kind = PickerKind::Status;
    QStringList m_keys;
};
