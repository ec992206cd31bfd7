// The bare application with a status icon that Ovanta's rest in the tray is compared with.
#include <QApplication>
#include <QMenu>
#include <QSystemTrayIcon>

int main(int argc, char **argv)
{
    QApplication aplicacion(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    QPixmap imagen(22, 22);
    imagen.fill(Qt::darkGray);
    QMenu menu;
    menu.addAction(QStringLiteral("Salir"), &aplicacion, &QApplication::quit);
    QSystemTrayIcon icono{QIcon(imagen)};
    icono.setContextMenu(&menu);
    icono.show();
    return QApplication::exec();
}
