# A screen of its own for the real program, with real keys: Xvfb, openbox, xdotool.
# shellcheck shell=bash
#
# Every wait polls for something that can be seen and gives up with an error. The processes started here end with
# the script that reads this file, whatever ends it.

HIJOS=()

CerrarPantalla() {
    local pid
    for pid in "${HIJOS[@]}"; do
        kill "$pid" 2>/dev/null || true
    done
    wait 2>/dev/null || true
}
trap CerrarPantalla EXIT

Fallar() {
    echo "FALLO: $*" >&2
    exit 1
}

# Esperar <seconds> <what> <command...>: until the command succeeds.
Esperar() {
    local fin=$(($(date +%s%N) + $1 * 1000000000)) que=$2
    shift 2
    until "$@" >/dev/null 2>&1; do
        [ "$(date +%s%N)" -lt "$fin" ] || Fallar "no llega: $que"
        sleep 0.05
    done
}

# AbrirPantalla <width>x<height> <folder for logs>: a free display number, exported as DISPLAY.
AbrirPantalla() {
    local carpeta=$2
    : >"$carpeta/numero"
    Xvfb -displayfd 5 -screen 0 "$1x24" -noreset -nolisten tcp 5>"$carpeta/numero" 2>"$carpeta/xvfb.log" &
    HIJOS+=($!)
    Esperar 15 "la pantalla virtual" test -s "$carpeta/numero"
    DISPLAY=":$(cat "$carpeta/numero")"
    export DISPLAY
    if [ -z "${XDG_RUNTIME_DIR:-}" ]; then
        export XDG_RUNTIME_DIR="$carpeta/sesion"
        mkdir -p -m 700 "$XDG_RUNTIME_DIR"
    fi
    openbox --sm-disable >"$carpeta/openbox.log" 2>&1 &
    HIJOS+=($!)
    Esperar 15 "el gestor de ventanas" sh -c 'xprop -root _NET_SUPPORTING_WM_CHECK | grep -q "window id"'
}

# Iniciar <program> [arguments]: leaves its process id in PROGRAMA.
Iniciar() {
    "$@" </dev/null &
    PROGRAMA=$!
    HIJOS+=("$PROGRAMA")
}

VentanasVisibles() {
    xdotool search --all --onlyvisible --pid "$PROGRAMA" --name . 2>/dev/null || true
}

HayVentanas() {
    [ "$(VentanasVisibles | wc -l)" -eq "$1" ]
}

# A window of the program has the keyboard that is not the main one nor the last one seen here: a question, a
# message, a dialog.
CUADRO=''
HayCuadro() {
    local activa
    activa=$(xdotool getactivewindow) || return 1
    [ "$activa" != "${PRINCIPAL:-}" ] && [ "$activa" != "$CUADRO" ] || return 1
    VentanasVisibles | grep -qx "$activa" || return 1
    CUADRO=$activa
}

EsperarCuadro() {
    Esperar 10 "$1" HayCuadro
}

PrincipalActiva() {
    [ "$(xdotool getactivewindow)" = "$PRINCIPAL" ] && HayVentanas 1
}

EsperarPrincipal() {
    Esperar 10 "la vuelta a la ventana principal" PrincipalActiva
}

Tecla() {
    xdotool key --clearmodifiers --delay 25 "$@"
}

Escribir() {
    xdotool type --clearmodifiers --delay 15 "$1"
}

# Foto <file>: the screen, once two looks at it in a row are the same.
Foto() {
    local antes='' ahora intento
    for intento in $(seq 1 20); do
        import -window root "$1"
        ahora=$(md5sum <"$1")
        [ "$ahora" != "$antes" ] || break
        antes=$ahora
    done
    [ "$intento" -lt 20 ] || Fallar "la pantalla no se detiene: $1"
    echo "  $1"
}

# The main window is higher than the splash and any message.
VentanaPrincipal() {
    local ventana
    for ventana in $(VentanasVisibles); do
        eval "$(xdotool getwindowgeometry --shell "$ventana" 2>/dev/null | grep '^HEIGHT=')"
        [ "${HEIGHT:-0}" -lt 450 ] || { PRINCIPAL=$ventana; return 0; }
    done
    return 1
}
