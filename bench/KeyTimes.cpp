#include "KeyTimes.h"

#include "EmptyWindow.h"

#include <QCoreApplication>
#include <QQmlApplicationEngine>
#include <QQuickItem>

using namespace Qt::StringLiterals;

namespace {

/// Null if there is none at or below the item.
QQuickItem *editorBelow(QQuickItem *root, const QString &name)
{
    if (!root->isVisible())
        return nullptr;
    if (root->property("name").toString() == name) {
        if (auto *editor = itemOf(root, "QQuickTextEdit"))
            return editor;
    }
    for (auto *child : root->childItems()) {
        if (auto *found = editorBelow(child, name))
            return found;
    }
    return nullptr;
}

} // namespace

int presses()
{
    const auto given = QCoreApplication::arguments().value(1).toInt();
    return given > 0 ? given : 300;
}

bool isMeasured(const QString &part)
{
    const auto only = QCoreApplication::arguments().value(2);
    return only.isEmpty() || only == part;
}

std::vector<qint64> pressesOf(FrameTimer &timer, int count, Qt::Key key, const QString &text)
{
    std::vector<qint64> times;
    times.reserve(std::size_t(count));
    for (int i = 0; i < count; ++i)
        times.push_back(timer.press(key, text));
    return times;
}

void measureEmptyWindow(std::optional<FrameTable> &table, int presses)
{
    QQmlApplicationEngine engine;
    engine.loadData(emptyWindow());
    FrameTimer timer(*qobject_cast<QQuickWindow *>(engine.rootObjects().first()));
    timer.settle();
    const auto times = pressesOf(timer, presses, Qt::Key_J, u"j"_s);
    if (!table)
        table.emplace(timer.renderer());
    table->add(u"nearly empty window"_s, times);
}

QQuickItem *itemOf(QQuickItem *root, const char *kind)
{
    if (root->inherits(kind))
        return root;
    for (auto *child : root->childItems()) {
        if (auto *found = itemOf(child, kind))
            return found;
    }
    return nullptr;
}

QQuickItem *editor(QQuickWindow &window, const QString &name)
{
    auto *found = editorBelow(window.contentItem(), name);
    if (found == nullptr)
        qFatal("There is no editor named %s.", qPrintable(name));
    return found;
}
