#!/usr/bin/env bash
# Tarvo on a sample shop: on the screen, or without one a walk through a sale.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"
echo "run.sh: compila Tarvo y lo abre con una tienda de muestra; sin pantalla hace una venta, un recibo y una devolución y los deja en salida/."
source tools/paquetes.sh

InstalarPaquetes "${PAQUETES_COMPILAR[@]}" "${PAQUETES_PANTALLA[@]}"
cmake --preset release >/dev/null
cmake --build --preset release --target tarvo muestra

[ -n "${DISPLAY:-}" ] || exec tools/recorrido.sh

# The run folder holds a copy of the program with its data, so that the build folder stays clean.
mkdir -p build/muestra/ajustes
cp -f build/release/tarvo build/release/tarvo27me.pdf build/muestra/
[ -d build/muestra/Datos ] || build/release/muestra build/muestra
XDG_CONFIG_HOME="$PWD/build/muestra/ajustes" exec build/muestra/tarvo
