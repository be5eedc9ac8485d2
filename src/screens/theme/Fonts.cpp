#include "screens/theme/Fonts.h"

#include "screens/theme/TypeScale.h"

#include <QDirIterator>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QQuickWindow>
#include <QResource>

using namespace Qt::StringLiterals;

namespace {

/// The bytes of a font in the program itself, where they stay until its end. A font that is registered by its path is
/// read twice instead, once to register it and once to draw with it, and both copies stay in memory.
QByteArray bytesOf(const QString &path)
{
    const QResource font(path);
    return QByteArray::fromRawData(reinterpret_cast<const char *>(font.data()), font.size());
}

bool registerFonts()
{
    bool complete = false;
    for (QDirIterator files(u":/velmora/fonts"_s, QDir::Files); files.hasNext();) {
        if (QFontDatabase::addApplicationFontFromData(bytesOf(files.next())) < 0)
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
