#include "platform/decoding/helper/DecodeMain.h"
#include "screens/theme/Fonts.h"

#include <QGuiApplication>
#include <QtQml/QQmlExtensionPlugin>

#include <gtest/gtest.h>

Q_IMPORT_QML_PLUGIN(Velmora_ModelPlugin)
Q_IMPORT_QML_PLUGIN(Velmora_ThemePlugin)
Q_IMPORT_QML_PLUGIN(Velmora_KitPlugin)
Q_IMPORT_QML_PLUGIN(Velmora_StatePlugin)
Q_IMPORT_QML_PLUGIN(Velmora_AttachmentsPlugin)
Q_IMPORT_QML_PLUGIN(Velmora_DocumentsPlugin)

int main(int argc, char **argv)
{
    if (const auto code = decodeIfAsked(argc, argv))
        return *code;
    const QGuiApplication application(argc, argv);
    if (!Fonts::load())
        return 2;
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
