#pragma once

namespace ovanta {

/// The verbs of `ovanta-banco`. Each measures one thing, prints one JSON object on a line of its own and
/// returns the program's exit code; `argv[0]` is the verb.
int bancoEjecutar(int argc, char **argv);
int bancoValidar(int argc, char **argv);
int bancoPapelera(int argc, char **argv);
int bancoMuestra(int argc, char **argv);
int bancoDups(int argc, char **argv);
int bancoWalk(int argc, char **argv);
int bancoProc(int argc, char **argv);
int bancoTicks(int argc, char **argv);
int bancoPlist(int argc, char **argv);

} // namespace ovanta
