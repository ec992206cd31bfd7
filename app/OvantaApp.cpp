#include "app/OvantaApp.h"

namespace ovanta {

OvantaApp::OvantaApp(Plataforma &plataforma, QObject *parent)
    : QObject(parent), m_plataforma(plataforma), m_disco(plataforma), m_sims(plataforma),
      m_reglas(plataforma), m_limpiador(plataforma), m_scanner(plataforma), m_mem(plataforma),
      m_stats(plataforma)
{
}

OvantaApp::~OvantaApp() = default;

} // namespace ovanta
