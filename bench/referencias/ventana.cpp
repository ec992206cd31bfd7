// The bare Qt Quick window that Ovanta's start is compared with: same size, same renderer, one text.
#include <QGuiApplication>
#include <QQmlApplicationEngine>

int main(int argc, char **argv)
{
    qputenv("QT_QUICK_BACKEND", "software");
    QGuiApplication aplicacion(argc, argv);
    QQmlApplicationEngine motor;
    motor.loadData("import QtQuick\nWindow { width: 1000; height: 700; visible: true; color: \"#f6f6f8\"\n"
                   "Text { anchors.centerIn: parent; text: \"Ovanta\"; font.pixelSize: 40 } }");
    return motor.rootObjects().isEmpty() ? 1 : QGuiApplication::exec();
}
