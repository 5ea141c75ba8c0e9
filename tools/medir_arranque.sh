#!/usr/bin/env bash
# How long the main window takes to come after the splash, and what the program then weighs, on a large shop and,
# in the same run, on an empty one: medir_arranque.sh [articles sales]
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
echo "medir_arranque.sh: tiempo del splash a la ventana principal y memoria, con una tienda grande y con una vacía."
source tools/pantalla.sh

readonly ARTICULOS=${1:-100000} VENTAS=${2:-1000000} SPLASH_MS=5000
CARPETA=$(mktemp -d)
trap 'CerrarPantalla; rm -rf "$CARPETA"' EXIT

Ahora() { date +%s%3N; }
HaySplash() { [ -n "$(VentanasVisibles)" ]; }
Memoria() { awk '/^VmRSS/ { print int($2 / 1024) }' "/proc/$PROGRAMA/status"; }

# Medir <folder>: prints a line and leaves the milliseconds in TIEMPO.
Medir() {
    local inicio
    XDG_CONFIG_HOME="$1/ajustes" QT_QPA_PLATFORM=xcb Iniciar "$1/tarvo"
    Esperar 30 "el splash" HaySplash
    inicio=$(Ahora)
    Esperar 120 "la ventana principal" VentanaPrincipal
    TIEMPO=$(($(Ahora) - inicio - SPLASH_MS))
    MEMORIA=$(Memoria)
    kill "$PROGRAMA"
    wait "$PROGRAMA" 2>/dev/null || true
}

mkdir "$CARPETA/grande" "$CARPETA/vacia"
build/release/muestra "$CARPETA/grande" "$ARTICULOS" 5000 "$VENTAS"
build/release/muestra "$CARPETA/vacia" 0 0 0
cp build/release/tarvo "$CARPETA/grande"
cp build/release/tarvo "$CARPETA/vacia"
AbrirPantalla 1280x900 "$CARPETA"

Medir "$CARPETA/vacia"
vacia=$TIEMPO
echo "vacía:  $TIEMPO ms tras el splash, $MEMORIA MB"
Medir "$CARPETA/grande"
echo "grande: $TIEMPO ms tras el splash, $MEMORIA MB"
awk -v g="$TIEMPO" -v v="$vacia" 'BEGIN { printf "grande / vacía: %.2f\n", g / (v > 0 ? v : 1) }'
