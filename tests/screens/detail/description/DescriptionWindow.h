#pragma once

#include "app/Spoken.h"
#include "screens/Bench.h"
#include "screens/detail/OpenIssue.h"
#include "state/AppStoreFixture.h"

#include <QQuickItem>

/// The description of the issue MOB-1 in a page that scrolls, in a real window, used by keys and pointer. A button
/// precedes it and another one follows. Escape that nobody takes counts as `escapes` of the page.
class DescriptionWindow : public AppStoreFixture
{
protected:
    static constexpr auto Text = QAccessible::EditableText;
    static constexpr auto Button = QAccessible::Button;

    DescriptionWindow();
    ~DescriptionWindow() override;

    static Issue described(const QString &markdown);
    /// Shows the page, with this record of the issue.
    void open(const Issue &issue);
    /// Shows the page before any record is known.
    void openUnknown();
    void answer(const Issue &issue);
    void refresh(const Issue &issue);

    void press(int key, Qt::KeyboardModifiers modifiers = {});
    void type(const QString &text);
    /// The only element of this role whose name begins with a text; fails without one.
    Spoken find(QAccessible::Role role, const QString &name);
    bool has(QAccessible::Role role, const QString &name);
    void click(QAccessible::Role role, const QString &name);
    void moveTo(const QPoint &place);
    /// Waits until the new layout is shown.
    void settle();
    /// Begins the editing with the button, by pointer.
    void edit();

    void save() { press(Qt::Key_Return, Qt::ControlModifier); }
    /// The words of the issue's description, as the store has it.
    QString shown() const;
    bool isEditing() { return has(QAccessible::EditableText, QStringLiteral("Description")); }
    QQuickItem *focused() { return bench.window().activeFocusItem(); }
    QString focusedName();
    QString text() { return focused()->property("text").toString(); }
    QQuickItem *section() { return page->property("section").value<QQuickItem *>(); }
    OpenIssue *issue() { return page->property("issue").value<OpenIssue *>(); }
    QImage picture() { return bench.window().grabWindow(); }

    Bench bench;
    QQuickItem *page = nullptr;
};
