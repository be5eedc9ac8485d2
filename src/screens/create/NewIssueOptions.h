#pragma once

#include "screens/create/NewIssueForm.h"
#include "screens/options/OptionSource.h"

#include <QPointer>
#include <QtQml/qqmlregistration.h>

/// The options for one chip of the sheet for a new issue.
class NewIssueOptions : public OptionSource
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(NewIssueForm *form READ form WRITE setForm NOTIFY formChanged FINAL REQUIRED)
    Q_PROPERTY(Kind kind MEMBER m_kind NOTIFY itemsChanged FINAL REQUIRED)

public:
    enum Kind { Project, Type, Priority, Assignee, Labels };
    Q_ENUM(Kind)

    using OptionSource::OptionSource;

    NewIssueForm *form() const { return m_form; }
    void setForm(NewIssueForm *form);

    QList<OptionItem> items() const override;
    void run(const OptionItem &item) override;
    /// New values can be created only for labels.
    bool canCreate() const override { return m_kind == Labels; }
    QString createLabel(const QString &candidate) const override;
    void create(const QString &label) override;

Q_SIGNALS:
    void formChanged();

private:
    QPointer<NewIssueForm> m_form;
    Kind m_kind = Project;
};
