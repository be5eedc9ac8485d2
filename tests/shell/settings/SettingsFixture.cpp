#include "shell/settings/SettingsFixture.h"

#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QQuickItem *controlNamed(const QQuickItem &parent, const QString &name)
{
    for (const QQuickItem *child : parent.childItems()) {
        if (child->property("accessibleName").toString() == name)
            return child;
        if (const QQuickItem *found = controlNamed(*child, name))
            return found;
    }
    return nullptr;
}

} // namespace

void SettingsFixture::choose(const QString &tab)
{
    Preferences(preferencesPath).setText(u"settingsTab"_s, tab);
}

void SettingsFixture::showSettings()
{
    desktop->setPrefersReducedMotion(true);
    Q_EMIT store().settingsRequested();
    settings().requestActivate();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&settings()));
    settleHere();
}

void SettingsFixture::pressHere(Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    QTest::keyClick(&settings(), key, modifiers);
}

void SettingsFixture::typeHere(const QString &text)
{
    for (const QChar letter : text)
        QTest::sendKeyEvent(QTest::Click, &settings(), Qt::Key_unknown, QString(letter),
                            Qt::NoModifier);
}

void SettingsFixture::clickHere(QAccessible::Role role, const QString &nameContains)
{
    const Spoken thing = here(role, nameContains);
    QTest::mouseClick(&settings(), Qt::LeftButton, {}, thing.box.center());
    settleHere();
}

Spoken SettingsFixture::here(QAccessible::Role role, const QString &nameContains)
{
    const auto found = [&] { return spokenIn(settings(), role, nameContains); };
    const bool came = QTest::qWaitFor([&] { return found().size() == 1; });
    EXPECT_TRUE(came) << "waited for " << nameContains.toStdString() << ", found "
                      << found().size();
    settleHere();
    return came ? found().first() : Spoken();
}

bool SettingsFixture::isHere(QAccessible::Role role, const QString &nameContains)
{
    return !spokenIn(settings(), role, nameContains).isEmpty();
}

bool SettingsFixture::isEnabledHere(const QString &name)
{
    const QQuickItem *control = controlNamed(*settings().contentItem(), name);
    EXPECT_TRUE(control) << name.toStdString();
    return control && control->isEnabled();
}

bool SettingsFixture::isGoneHere(QAccessible::Role role, const QString &nameContains)
{
    return QTest::qWaitFor([&] { return !isHere(role, nameContains); });
}

void SettingsFixture::settleHere()
{
    for (int frame = 0; frame < 2; ++frame) {
        QSignalSpy frames(&settings(), &QQuickWindow::frameSwapped);
        settings().update();
        frames.wait(1000);
    }
}

QString SettingsFixture::focusedHere()
{
    for (const auto &thing : spokenIn(settings())) {
        if (thing.state.focused && !thing.name.isEmpty())
            return thing.name;
    }
    return {};
}

bool SettingsFixture::tabTo(QAccessible::Role role, const QString &nameContains)
{
    constexpr int moreThanAllStops = 80;
    for (int i = 0; i < moreThanAllStops; ++i) {
        for (const auto &thing : spokenIn(settings(), role, nameContains)) {
            if (thing.state.focused)
                return true;
        }
        pressHere(Qt::Key_Tab);
    }
    return false;
}

QVariant SettingsFixture::token(const char *name)
{
    QQmlComponent component(qmlEngine(&window()));
    component.setData(
        "import QtQml; import Velmora.Theme; QtObject { property QtObject theme: Theme }", QUrl());
    const std::unique_ptr<QObject> holder(component.create());
    return holder->property("theme").value<QObject *>()->property(name);
}
