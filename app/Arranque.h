#pragma once

#include <functional>
#include <memory>

namespace ovanta {

class Plataforma;

/// Runs the program over the platform that `crear` makes, until the user or the session ends it.
/// The common body of every program's `main`; returns its exit code.
int ejecutarPrograma(int argc, char **argv, const std::function<std::unique_ptr<Plataforma>()> &crear);

} // namespace ovanta
