#!/usr/bin/env bash
# Builds Tarvo and runs every test, those of the whole program on a screen of their own included.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"
echo "test.sh: instala lo que falta, compila Tarvo y ejecuta todas sus pruebas."
source tools/paquetes.sh

InstalarPaquetes "${PAQUETES_COMPILAR[@]}" "${PAQUETES_PANTALLA[@]}" "${PAQUETES_LECTORES[@]}"
cmake --preset release >/dev/null
cmake --build --preset release
ctest --preset release "$@"
