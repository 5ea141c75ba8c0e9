# The part of the walk that designs the shop's invoice form and prints on it; recorrido.sh reads it.
# shellcheck shell=bash

DisenadorActivo() { xdotool getactivewindow getwindowname | grep -q 'Diseñador de facturas'; }
HayOpciones() { [ "$(xdotool getactivewindow getwindowname)" = Opciones ]; }
HayFactura() { ls "$CARPETA"/Impresos/factura-2*.pdf; }

# EnDisenador <x> <y>: the mouse to a point of the designer's window.
EnDisenador() { xdotool mousemove --window "$DISENADOR" "$1" "$2"; }

# Orden <n>: presses the n-th button of the designer, once it has come to rest.
Orden() {
    Foto "$CARPETA/registros/reposo.png" >/dev/null
    EnDisenador 862 $((30 + 32 * ($1 - 1)))
    xdotool click 1
}

# EscribirRuta <path>: into the file dialog that Orden has opened.
EscribirRuta() {
    CUADRO=$DISENADOR
    EsperarCuadro "la selección de un archivo"
    Escribir "$1"
    Retrato archivo
    Tecla Return
    Esperar 10 "la vuelta al diseñador" DisenadorActivo
}

# A label, a field dragged, a logo; saved under another name.
DisenarFactura() {
    local paso guardada=$CARPETA/facturas/recorrido.kzd
    Tecla alt+h d
    Esperar 10 "el diseñador de facturas" DisenadorActivo
    DISENADOR=$(xdotool getactivewindow)
    # shellcheck disable=SC2034 # of pantalla.sh
    CUADRO=$DISENADOR
    Retrato disenador
    Orden 3
    EsperarCuadro "la etiqueta"
    Escribir "Vuelva pronto"
    Retrato etiqueta
    Tecla shift+Tab space
    Esperar 10 "la vuelta al diseñador" DisenadorActivo
    # The customer's name, on the canvas, which begins at 30,81 of the window; its corner goes where the cursor is.
    EnDisenador 330 137
    xdotool mousedown 1
    for paso in 1 2 3 4; do
        EnDisenador $((330 - 50 * paso)) $((137 + 50 * paso))
    done
    Retrato arrastre
    xdotool mouseup 1
    Orden 5
    EscribirRuta "$CARPETA/facturas/logo.bmp"
    Orden 2
    EscribirRuta "${guardada%.kzd}"
    Retrato guardada
    Tecla Escape
    Esperar 10 "las opciones" HayOpciones
    Tecla Escape
    EsperarPrincipal
    CUADRO=''
    iconv -f windows-1252 -t utf-8 "$guardada" | grep -q "Vuelva pronto,.*$CARPETA/facturas/logo.bmp," ||
        Fallar "la factura guardada no es la esperada"
    # 100 and 256 pixels, give or take what a style makes of the window's margins.
    cut -d, -f9,10 "$guardada" | awk -F, '{ exit !($1 > 1400 && $1 < 1600 && $2 > 3740 && $2 < 3940) }' ||
        Fallar "el campo no quedó donde se soltó"
}

# The invoice of the sale that was issued last.
ImprimirFactura() {
    local factura
    Tecla ctrl+i
    Esperar 10 "la factura" HayFactura
    factura=("$CARPETA"/Impresos/factura-2*.pdf)
    cp "${factura[0]}" "$SALIDA/factura.pdf"
    pdftoppm -png -r 100 -singlefile "$SALIDA/factura.pdf" "$SALIDA/factura"
    pdftotext -layout "$SALIDA/factura.pdf" "$SALIDA/factura.txt"
    grep -q "$NUMERO" "$SALIDA/factura.txt" || Fallar "la factura no tiene el número"
    grep -q "Vuelva pronto" "$SALIDA/factura.txt" || Fallar "la factura no está sobre la hoja guardada"
}
