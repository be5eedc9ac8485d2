#include "screens/kit/KitProviders.h"
#include "screens/theme/Fonts.h"

#include <QGuiApplication>
#include <QQmlApplicationEngine>
#include <QQuickWindow>
#include <QTimer>
#include <QtQml/QQmlExtensionPlugin>

Q_IMPORT_QML_PLUGIN(Velmora_ModelPlugin)
Q_IMPORT_QML_PLUGIN(Velmora_ThemePlugin)
Q_IMPORT_QML_PLUGIN(Velmora_KitPlugin)
Q_IMPORT_QML_PLUGIN(Velmora_GalleryPlugin)

using namespace Qt::StringLiterals;

// usage: gallery [page [dark [picture.png]]]; with a picture it draws one frame, saves it and ends.
int main(int argc, char **argv)
{
    const QGuiApplication application(argc, argv);
    if (!Fonts::load())
        qFatal("The fonts of the program are missing.");
    const auto arguments = QGuiApplication::arguments();
    QQmlApplicationEngine engine;
    engine.addImportPath(u":/qt/qml"_s);
    registerKitProviders(engine);
    engine.setInitialProperties({{u"page"_s, arguments.value(1, u"icons"_s)},
                                 {u"dark"_s, arguments.value(2) == u"dark"_s}});
    engine.load(QUrl(u"qrc:/qt/qml/Velmora/Gallery/Gallery.qml"_s));
    auto *window = engine.rootObjects().isEmpty()
                       ? nullptr
                       : qobject_cast<QQuickWindow *>(engine.rootObjects().first());
    if (!window)
        return 1;
    const auto picture = arguments.value(3);
    if (!picture.isEmpty()) {
        QTimer::singleShot(500, window, [window, picture] {
            window->grabWindow().save(picture);
            window->close();
        });
    }
    return QGuiApplication::exec();
}
