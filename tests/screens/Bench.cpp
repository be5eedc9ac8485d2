#include "screens/Bench.h"

#include "screens/kit/KitProviders.h"

#include <QAccessible>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

QStringList *listening = nullptr;

void listen(QtMsgType type, const QMessageLogContext &, const QString &message)
{
    if (listening && type != QtDebugMsg && type != QtInfoMsg)
        listening->append(message);
}

} // namespace

Bench::Bench()
{
    // Enables accessibility as a screen reader does. Qt Quick Controls set their accessible texts only then.
    QAccessible::setActive(true);
    listening = &m_warnings;
    qInstallMessageHandler(listen);
    m_window.engine()->addImportPath(u":/qt/qml"_s);
    registerKitProviders(*m_window.engine());
    m_window.resize(600, 400);
    QQmlComponent tokens(m_window.engine());
    tokens.setData("import QtQml\nimport Velmora.Theme\n"
                   "QtObject { property QtObject theme: Theme; property QtObject motion: Motion }",
                   QUrl(u"qrc:/tokens.qml"_s));
    m_tokens.reset(tokens.create());
}

Bench::~Bench()
{
    qInstallMessageHandler(nullptr);
    listening = nullptr;
}

QQuickItem *Bench::show(const QString &qml)
{
    QQmlComponent component(m_window.engine());
    component.setData(
        "import QtQuick\nimport Velmora.Kit\nimport Velmora.Model\nimport Velmora.Theme\n" +
            qml.toUtf8(),
        QUrl(u"qrc:/bench.qml"_s));
    m_item.reset(qobject_cast<QQuickItem *>(component.create()));
    for (const auto &error : component.errors())
        m_warnings.append(error.toString());
    if (!m_item)
        return nullptr;
    m_item->setParentItem(m_window.contentItem());
    m_window.show();
    m_window.requestActivate();
    if (!QTest::qWaitForWindowActive(&m_window))
        m_warnings.append(u"The window did not become active."_s);
    return m_item.get();
}

void Bench::setToken(const char *name, const char *property, const QVariant &value)
{
    auto *object = singleton(name);
    if (!object || !object->setProperty(property, value))
        m_warnings.append(QString::fromLatin1(name) + u" cannot be written"_s);
}

QVariant Bench::token(const char *name, const char *property)
{
    auto *object = singleton(name);
    return object ? object->property(property) : QVariant();
}
