#include "screens/kit/KitProviders.h"
#include "screens/theme/Fonts.h"

#include <QCommandLineParser>
#include <QGuiApplication>
#include <QQmlApplicationEngine>
#include <QQuickWindow>
#include <QTimer>
#include <QtQml/QQmlExtensionPlugin>

Q_IMPORT_QML_PLUGIN(Velmora_ModelPlugin)
Q_IMPORT_QML_PLUGIN(Velmora_ThemePlugin)
Q_IMPORT_QML_PLUGIN(Velmora_KitPlugin)
Q_IMPORT_QML_PLUGIN(Velmora_StatePlugin)
Q_IMPORT_QML_PLUGIN(Velmora_OptionsPlugin)
Q_IMPORT_QML_PLUGIN(Velmora_DocumentsPlugin)
Q_IMPORT_QML_PLUGIN(Velmora_ComposerPlugin)
Q_IMPORT_QML_PLUGIN(Velmora_AttachmentsPlugin)
Q_IMPORT_QML_PLUGIN(Velmora_GalleryPlugin)

using namespace Qt::StringLiterals;

namespace {

// Qt reads the variable when the application object is created, which is before the options are parsed.
void setScale(int argc, char **argv)
{
    const auto option = "--scale="_L1;
    for (int i = 1; i < argc; ++i) {
        const auto argument = QString::fromLocal8Bit(argv[i]);
        if (argument.startsWith(option))
            qputenv("QT_SCALE_FACTOR", argument.mid(option.size()).toLatin1());
    }
}

void addOptions(QCommandLineParser &parser)
{
    parser.addHelpOption();
    parser.addOptions(
        {{u"page"_s,
          u"icons, symbols, states, fields, forms, controls, panels, overlays, menus, sheets, "
          "documents, composers or attachments"_s,
          u"name"_s, u"icons"_s},
         {u"dark"_s, u"in the dark appearance"_s},
         {u"accent"_s, u"from 0, indigo, to 6, graphite"_s, u"number"_s, u"0"_s},
         {u"scale"_s, u"device pixels per point, 1 to 3"_s, u"factor"_s, u"1"_s},
         {u"picture"_s, u"leave a picture of the page here, and end"_s, u"file"_s}});
}

void savePicture(QQuickWindow *window, const QString &file)
{
    constexpr int settled = 500;
    const auto save = [window, file] {
        window->grabWindow().save(file);
        window->close();
    };
    // Animations start when the window is first visible.
    QObject::connect(
        window, &QQuickWindow::frameSwapped, window,
        [window, save] { QTimer::singleShot(settled, window, save); },
        Qt::ConnectionType(Qt::QueuedConnection | Qt::SingleShotConnection));
}

} // namespace

int main(int argc, char **argv)
{
    setScale(argc, argv);
    const QGuiApplication application(argc, argv);
    if (!Fonts::load())
        qFatal("The fonts of the program are missing.");
    QCommandLineParser parser;
    addOptions(parser);
    parser.process(application);
    QQmlApplicationEngine engine;
    engine.addImportPath(u":/qt/qml"_s);
    registerKitProviders(engine);
    engine.setInitialProperties({{u"page"_s, parser.value(u"page"_s)},
                                 {u"dark"_s, parser.isSet(u"dark"_s)},
                                 {u"accent"_s, parser.value(u"accent"_s).toInt()}});
    engine.load(QUrl(u"qrc:/qt/qml/Velmora/Gallery/Gallery.qml"_s));
    auto *window = engine.rootObjects().isEmpty()
                       ? nullptr
                       : qobject_cast<QQuickWindow *>(engine.rootObjects().first());
    if (!window)
        return 1;
    if (parser.isSet(u"picture"_s))
        savePicture(window, parser.value(u"picture"_s));
    return QGuiApplication::exec();
}
