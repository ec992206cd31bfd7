#pragma once

#include <string>
#include <string_view>

namespace ovanta {

// What a program is by its file name alone. Names are compared byte by byte.

/// Runs somebody else's script: what it is about stands in its first argument.
bool esInterprete(std::string_view nombre);

/// Only starts something else, or is shared by so many that its name tells nothing.
bool esLanzador(std::string_view nombre);

/// Command interpreters: what they start is not theirs.
bool esConsola(std::string_view nombre);

/// The desktop itself: display servers, compositors, shells, session and login managers, buses, sound,
/// portals, agents. Ending one of them ends or maims the session.
bool esParteDeSesion(std::string_view nombre);

/// Programs that only ever work for the one that started them, from a folder of their own.
bool esAyudante(std::string_view nombre);

/// Keeps a container alive, or is its first process on behalf of the real one.
bool esSostenDeContenedor(std::string_view nombre);

/// Runs one virtual machine.
bool esMaquinaVirtual(std::string_view nombre);

/// The folder that an application has to itself, by the path of its program: "/opt/x" for "/opt/x/bin/x".
/// Empty where the folder is shared with others: /usr/bin, the user's home and what lies directly in it,
/// and the like. `hogar` may be empty.
std::string carpetaDeInstalacion(std::string_view programa, std::string_view hogar);

} // namespace ovanta
