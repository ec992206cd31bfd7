# Sourced by ./run and ./test: installs the Debian packages of paquetes-debian.txt that are missing.
# shellcheck shell=bash

instalar_paquetes() {
    local raiz=$1 faltan=() paquete como=()
    while read -r paquete _; do
        case $paquete in '' | '#'*) continue ;; esac
        dpkg-query -W -f='${Status}' "$paquete" 2>/dev/null | grep -q 'ok installed' || faltan+=("$paquete")
    done <"$raiz/paquetes-debian.txt"
    [ ${#faltan[@]} -eq 0 ] && return 0
    if [ "$(id -u)" -ne 0 ]; then
        command -v sudo >/dev/null || {
            echo "Faltan paquetes y no hay sudo; instala como root: ${faltan[*]}" >&2
            return 1
        }
        como=(sudo)
    fi
    echo "Instalando: ${faltan[*]}"
    "${como[@]}" env DEBIAN_FRONTEND=noninteractive apt-get update -qq
    "${como[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${faltan[@]}" >/dev/null
}

# construir PRESET [target...]
construir() {
    local preset=$1
    shift
    export CCACHE_SLOPPINESS=${CCACHE_SLOPPINESS:-pch_defines,time_macros}
    cmake --preset "$preset" >"build/$preset.configure.log" 2>&1 || { cat "build/$preset.configure.log"; return 1; }
    cmake --build "build/$preset" --parallel "$(nproc)" ${1:+--target "$@"}
}
