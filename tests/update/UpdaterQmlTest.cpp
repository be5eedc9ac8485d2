#include "update/UpdaterFixture.h"

#include <QQmlComponent>
#include <QQmlEngine>

using namespace Qt::StringLiterals;

namespace {

/// A document that observes the updater as a screen does.
constexpr auto Screen = R"(
import QtQml
import Velmora.Update

QtObject {
    required property Updater updater
    readonly property bool isReady: updater.state.kind === UpdateKinds.Kind.Ready
    readonly property string version: updater.state.releaseOrEmpty.version
    readonly property string failure: updater.state.failureOrEmpty
    readonly property bool hasFeed: updater.hasFeed
    readonly property string news: updater.hasWhatsNew ? updater.whatsNewOrEmpty.notesOrEmpty : "none"
}
)";

class UpdaterQmlTest : public UpdaterFixture
{
protected:
    UpdaterQmlTest()
    {
        open();
        engine.addImportPath(u"qrc:/qt/qml"_s);
        QQmlComponent component(&engine);
        component.setData(Screen, QUrl(u"qrc:/Screen.qml"_s));
        screen.reset(component.createWithInitialProperties(
            {{u"updater"_s, QVariant::fromValue(&*updater)}}));
        EXPECT_TRUE(screen) << component.errorString().toStdString();
    }
    std::string value(const char *name) const
    {
        return screen->property(name).toString().toStdString();
    }

    QQmlEngine engine;
    std::unique_ptr<QObject> screen;
};

TEST_F(UpdaterQmlTest, AScreenObservesTheState)
{
    EXPECT_EQ(value("isReady"), "false");
    answerFeed({}, 500);
    check();
    EXPECT_EQ(value("failure"), "Le serveur de mises à jour a répondu 500.");
    offer(newer());
    offerArchive();
    check();
    EXPECT_EQ(value("isReady"), "true");
    EXPECT_EQ(value("version"), "1.5");
    EXPECT_EQ(value("failure"), "");
}

TEST_F(UpdaterQmlTest, AScreenStartsOperations)
{
    offer(newer());
    QMetaObject::invokeMethod(&*updater, "checkNow");
    EXPECT_EQ(transport.feeds.count(), 1);
    EXPECT_EQ(value("hasFeed"), "true");
    EXPECT_EQ(value("news"), "none");
}

} // namespace
