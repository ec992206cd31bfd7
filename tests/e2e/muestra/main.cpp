#include <QGuiApplication>
#include <QQmlApplicationEngine>

/// Shows the QML file of its first argument: the program on which the driver of the other tests is
/// itself tested.
int main(int argc, char **argv)
{
    QGuiApplication aplicacion(argc, argv);
    QQmlApplicationEngine motor;
    motor.load(QUrl::fromLocalFile(QGuiApplication::arguments().value(1)));
    return motor.rootObjects().isEmpty() ? 1 : QGuiApplication::exec();
}
