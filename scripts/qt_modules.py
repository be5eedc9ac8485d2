"""The QML modules of Qt that Velmora loads."""
import json
import os
import subprocess

ROOT = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))
QT_QML = "/usr/lib/x86_64-linux-gnu/qt6/qml"
SCANNER = "/usr/lib/qt6/libexec/qmlimportscanner"
# Modules that QML loads by itself, which the scanner does not name.
IMPLIED = ["QtQml/WorkerScript", "Qt/labs/qmlmodels"]


def qml_modules():
    """The folders of Qt's QML modules that the screens import, directly or not."""
    output = subprocess.run([SCANNER, "-rootPath", os.path.join(ROOT, "src"), "-importPath", QT_QML], check=True,
                            stdout=subprocess.PIPE, text=True).stdout
    paths = {os.path.realpath(each["path"]) for each in json.loads(output) if each.get("path", "").startswith(QT_QML)}
    return sorted(paths | {os.path.join(QT_QML, module) for module in IMPLIED
                           if os.path.isdir(os.path.join(QT_QML, module))})
