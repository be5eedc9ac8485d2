#include "screens/theme/Fonts.h"

#include "screens/theme/TypeScale.h"

#include <QDirIterator>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QQuickWindow>

using namespace Qt::StringLiterals;

namespace {

bool registerFonts()
{
    bool complete = false;
    for (QDirIterator files(u":/velmora/fonts"_s, QDir::Files); files.hasNext();) {
        if (QFontDatabase::addApplicationFont(files.next()) < 0)
            return false;
        complete = true;
    }
    return complete;
}

QQuickWindow::TextRenderType textRenderType()
{
    return qGuiApp->devicePixelRatio() > 1.0 ? QQuickWindow::QtTextRendering
                                             : QQuickWindow::NativeTextRendering;
}

} // namespace

bool Fonts::load()
{
    static const bool loaded = [] {
        const bool registered = registerFonts();
        QGuiApplication::setFont(TypeScale::fontOf(TypeScale::Body));
        QQuickWindow::setTextRenderType(textRenderType());
        return registered;
    }();
    return loaded;
}
