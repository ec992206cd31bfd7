#include "platform/linux/DialogoCriticoLinux.h"

#include "core/qt/Texto.h"

#include <QMessageBox>

namespace ovanta {

void DialogoCriticoLinux::mostrar(const std::string &titulo, const std::string &cuerpo,
                                  const std::string &boton, std::function<void()> alCerrar)
{
    auto *dialogo = new QMessageBox;
    dialogo->setAttribute(Qt::WA_DeleteOnClose);
    // The program lives on in the tray: its last window may be this one.
    dialogo->setAttribute(Qt::WA_QuitOnClose, false);
    dialogo->setWindowModality(Qt::NonModal);
    dialogo->setTextFormat(Qt::PlainText);
    dialogo->setIcon(QMessageBox::Critical);
    dialogo->setWindowTitle(QStringLiteral("Ovanta"));
    dialogo->setText(ovanta::mostrar(titulo));
    dialogo->setInformativeText(ovanta::mostrar(cuerpo));
    dialogo->addButton(ovanta::mostrar(boton), QMessageBox::AcceptRole);
    QObject::connect(dialogo, &QMessageBox::finished, dialogo,
                     [alCerrar = std::move(alCerrar)](int) { alCerrar(); });
    dialogo->show();
    dialogo->raise();
    dialogo->activateWindow();
}

} // namespace ovanta
