#pragma once

#include "screens/documents/speech/SpokenTree.h"

#include <QAccessibleObject>

class DocumentReader;
class DocumentSpeech;

/// The accessible interface of a document.
class DocumentInterface : public QAccessibleObject
{
public:
    explicit DocumentInterface(DocumentReader &reader);

    QWindow *window() const override;
    QAccessibleInterface *parent() const override;
    int childCount() const override;
    QAccessibleInterface *child(int index) const override;
    int indexOfChild(const QAccessibleInterface *child) const override;
    QAccessibleInterface *childAt(int x, int y) const override;
    QAccessibleInterface *focusChild() const override;
    QString text(QAccessible::Text text) const override;
    QRect rect() const override;
    QAccessible::Role role() const override { return QAccessible::Document; }
    QAccessible::State state() const override;

private:
    DocumentReader &reader() const;
};

/// The accessible interface of a part of a document.
class PartInterface : public QAccessibleInterface, public QAccessibleActionInterface
{
public:
    PartInterface(DocumentSpeech &speech, int number) : m_speech(speech), m_number(number) {}

    bool isValid() const override { return true; }
    QObject *object() const override { return nullptr; }
    QWindow *window() const override;
    QAccessibleInterface *parent() const override;
    int childCount() const override;
    QAccessibleInterface *child(int index) const override;
    int indexOfChild(const QAccessibleInterface *child) const override;
    QAccessibleInterface *childAt(int x, int y) const override;
    QString text(QAccessible::Text text) const override;
    void setText(QAccessible::Text, const QString &) override {}
    QRect rect() const override;
    QAccessible::Role role() const override;
    QAccessible::State state() const override;
    void *interface_cast(QAccessible::InterfaceType type) override;

    QStringList actionNames() const override;
    void doAction(const QString &name) override;
    QStringList keyBindingsForAction(const QString &) const override { return {}; }

private:
    const SpokenNode &node() const;
    bool canBePressed() const { return node().stop >= 0; }

    DocumentSpeech &m_speech;
    int m_number;
};
