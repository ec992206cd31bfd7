#pragma once

#include "monitors/MemoryMonitor.h"
#include "ui/componentes/Paleta.h"

#include <QString>
#include <cstdint>
#include <vector>

namespace ovanta {

/// A size as the memory screen shows it.
QString textoDeMemoria(std::uint64_t bytes);

/// One of the five things that the memory is taken by.
struct FilaCategoria
{
    Q_GADGET
    Q_PROPERTY(QString clave MEMBER clave)
    Q_PROPERTY(QString cifra MEMBER cifra)
    Q_PROPERTY(QString linea MEMBER linea)
    Q_PROPERTY(ovanta::Tinte tinte MEMBER tinte)
    Q_PROPERTY(double fraccion MEMBER fraccion)
public:
    QString clave; ///< its name
    QString cifra;
    QString linea; ///< what it is; may be empty
    Tinte tinte = Tinte::Azul;
    double fraccion = 0; ///< of the five together, from 0 to 1

    bool operator==(const FilaCategoria &) const = default;
};

/// A recommendation, and the word on its button; empty where there is nothing to press.
struct FilaRecomendacion
{
    Q_GADGET
    Q_PROPERTY(QString clave MEMBER clave)
    Q_PROPERTY(QString icono MEMBER icono)
    Q_PROPERTY(QString texto MEMBER texto)
    Q_PROPERTY(QString boton MEMBER boton)
public:
    QString clave; ///< its id
    QString icono;
    QString texto;
    QString boton;

    bool operator==(const FilaRecomendacion &) const = default;
};

/// A row of the table of applications.
struct FilaProceso
{
    Q_GADGET
    Q_PROPERTY(QString clave MEMBER clave)
    Q_PROPERTY(int pid MEMBER pid)
    Q_PROPERTY(QString icono MEMBER icono)
    Q_PROPERTY(QString nombre MEMBER nombre)
    Q_PROPERTY(QString cuantos MEMBER cuantos)
    Q_PROPERTY(QString cpu MEMBER cpu)
    Q_PROPERTY(ovanta::Tinte tinteCpu MEMBER tinteCpu)
    Q_PROPERTY(QString memoria MEMBER memoria)
    Q_PROPERTY(double fraccion MEMBER fraccion)
    Q_PROPERTY(ovanta::Tinte tinteMemoria MEMBER tinteMemoria)
    Q_PROPERTY(QString resumen MEMBER resumen)
    Q_PROPERTY(bool seleccionable MEMBER seleccionable)
    Q_PROPERTY(bool seleccionada MEMBER seleccionada)
public:
    QString clave; ///< pid and the moment it began
    int pid = 0;
    QString icono;
    QString nombre;
    QString cuantos; ///< how many processes; empty for a single one
    QString cpu;     ///< empty where there is hardly any
    Tinte tinteCpu = Tinte::Secundario;
    QString memoria;
    double fraccion = 0; ///< of the whole memory, from 0 to 1
    Tinte tinteMemoria = Tinte::Azul;
    QString resumen; ///< its figures in one line, for those who do not see the table
    bool seleccionable = false;
    bool seleccionada = false;

    bool operator==(const FilaProceso &) const = default;
};

/// The user's ticks: pids, each with the process that it meant when it was ticked.
using SeleccionProcesos = IdentidadesProcesos;

std::vector<FilaCategoria> filasDeCategorias(const MemoryMonitor &mem);

std::vector<FilaRecomendacion> filasDeRecomendaciones(const std::vector<Recomendacion> &recomendaciones);

FilaProceso filaDeProceso(const Proceso &proceso, std::uint64_t total, bool seleccionada);

/// The per cent of the processor as the table writes it, with a point.
QString textoCpu(double cpu);

/// Whether the ticked process is still the one that stands in the ranking under its pid, or is not there.
bool sigueSiendo(const SeleccionProcesos::value_type &tique, const std::vector<Proceso> &procesos);

} // namespace ovanta
