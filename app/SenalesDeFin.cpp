#include "app/SenalesDeFin.h"

#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace ovanta {

namespace {

int tubo[2] = {-1, -1};

void alLlegar(int)
{
    const char marca = 1;
    [[maybe_unused]] const ssize_t escrito = write(tubo[1], &marca, 1);
}

} // namespace

SenalesDeFin::SenalesDeFin(QObject *parent) : QObject(parent)
{
    if (pipe(tubo) != 0) return;
    for (const int extremo : tubo) {
        fcntl(extremo, F_SETFD, FD_CLOEXEC);
        fcntl(extremo, F_SETFL, O_NONBLOCK);
    }
    m_aviso = std::make_unique<QSocketNotifier>(tubo[0], QSocketNotifier::Read);
    connect(m_aviso.get(), &QSocketNotifier::activated, this, [this] {
        char marca = 0;
        while (read(tubo[0], &marca, 1) == 1) {
        }
        Q_EMIT pedida();
    });
    struct sigaction accion = {};
    accion.sa_handler = alLlegar;
    accion.sa_flags = SA_RESTART;
    for (const int senal : {SIGTERM, SIGINT, SIGHUP})
        sigaction(senal, &accion, nullptr);
}

SenalesDeFin::~SenalesDeFin()
{
    for (const int senal : {SIGTERM, SIGINT, SIGHUP})
        signal(senal, SIG_DFL);
    m_aviso.reset();
    for (int &extremo : tubo) {
        if (extremo >= 0) close(extremo);
        extremo = -1;
    }
}

} // namespace ovanta
