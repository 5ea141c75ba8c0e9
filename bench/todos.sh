#!/usr/bin/env bash
# Every bench, one after the other, on a screen of its own; fails when one of them does.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
echo "todos.sh: compila Tarvo y sus mediciones y las ejecuta una tras otra, cada cifra junto a su límite."
source tools/paquetes.sh

InstalarPaquetes "${PAQUETES_COMPILAR[@]}" "${PAQUETES_PANTALLA[@]}"
cmake --preset release >/dev/null

bancos=()
for fuente in bench/banco_*.cpp; do
    bancos+=("$(basename "$fuente" .cpp)")
done
cmake --build --preset release --target tarvo "${bancos[@]}"

fallos=0
for banco in "${bancos[@]}"; do
    printf '\n%s\n' "$banco"
    xvfb-run -a "build/release/bench/$banco" || fallos=$((fallos + 1))
done
exit $((fallos > 0))
