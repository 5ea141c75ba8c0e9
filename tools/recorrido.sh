#!/usr/bin/env bash
# The shop's invoice form and one sale with its invoice in the real program, by real keys on a screen of its own, on a
# fresh sample shop; then its customer's statement, a receipt, the return of the sale, the cash list and the cash sheet of
# the day; exports, calculator, statistics, keys, a backup that empties the sales, their restore, and a user. Leaves the
# pictures of each stage, everything printed or exported and the new rows in salida/, and fails when anything is not as it
# must be.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
source tools/pantalla.sh
source tools/recorridofactura.sh

readonly SALIDA=$PWD/salida CARPETA=$PWD/build/recorrido NUMERO=0001-00009001
rm -rf "$SALIDA" "$CARPETA"
mkdir -p "$SALIDA" "$CARPETA/ajustes" "$CARPETA/registros" "$CARPETA/Respaldo"
cp build/release/tarvo "$CARPETA/tarvo"
build/release/muestra "$CARPETA"

# A picture of the screen, numbered in the order of the walk.
FOTOS=0
Retrato() {
    FOTOS=$((FOTOS + 1))
    Foto "$SALIDA/$(printf %02d "$FOTOS")-$1.png"
}

# Exports the list on screen to that file of salida/.
Exportar() {
    Tecla ctrl+F6
    EsperarCuadro "el diálogo de exportar"
    Escribir "$SALIDA/$1"
    [ -z "${2:-}" ] || Retrato "$2"
    Tecla Return
    EsperarPrincipal
    Esperar 10 "el archivo $1" test -s "$SALIDA/$1"
}

Consultar() { sqlite3 "$CARPETA/Datos/$1.mdb" "$2"; }

# Stock of the three articles, before or after.
Existencias() { Consultar articulos "SELECT group_concat(stock, ' ') FROM Articulos WHERE id IN ($IDS)"; }

# What is sold: three articles, to a customer with a fiscal id whose name can be typed on any keyboard.
readonly IDS=1,5,9
mapfile -t BARRAS < <(Consultar articulos "SELECT codbarras1 FROM Articulos WHERE id IN ($IDS)")
CLIENTE=$(Consultar clientes "SELECT id || '|' || nombre FROM Clientes AS c WHERE ifiscal <> ''
    AND nombre NOT GLOB '*[^ -~]*' AND 1 = (SELECT count(*) FROM Clientes WHERE nombre = c.nombre) LIMIT 1")
readonly CLIENTE
ANTES=$(Existencias)
VENTAS=$(Consultar ventas 'SELECT count(*) FROM Ventas')
readonly ANTES VENTAS

echo "Recorrido (${CLIENTE#*|}, artículos $IDS):"
AbrirPantalla 1280x900 "$CARPETA/registros"
Arrancar() { XDG_CONFIG_HOME="$CARPETA/ajustes" QT_QPA_PLATFORM=xcb Iniciar "$CARPETA/tarvo" "$@"; }
Arrancar
HaySplash() { [ -n "$(VentanasVisibles)" ]; }
Esperar 20 "el splash" HaySplash
Retrato splash
Esperar 30 "la ventana principal" VentanaPrincipal
EsperarPrincipal
Retrato principal

# The windows from here on as large as the screen.
PantallaLlena() { xdotool getwindowgeometry "$PRINCIPAL" | grep -q 'Geometry: 1280x900'; }
Tecla F11
Esperar 10 "la pantalla completa" PantallaLlena

DisenarFactura

# The sale: two scans of one unit; of the third article four units.
Tecla F8
Retrato ventas
for barra in "${BARRAS[0]}" "${BARRAS[1]}"; do
    Escribir "$barra"
    Tecla Return Return
done
Escribir "${BARRAS[2]}"
Tecla Return shift+Tab
Escribir 4
Retrato cantidad
Tecla Return
Retrato lineas

# The customer: from the search field on to the button, then search and accept in the panel.
Tecla Tab Tab Tab Tab Tab Tab Tab space
Escribir "${CLIENTE#*|}"
Tecla Return
Retrato clientes
Tecla Tab Tab Tab Tab space
Retrato cliente

# Discount, and back from there: seller, document number, credit.
Tecla alt+d
Escribir 10
Tecla shift+Tab Down shift+Tab
Escribir "$NUMERO"
Tecla shift+Tab space
Retrato completa

# From the discount on to the button that issues.
Tecla alt+d Tab Tab space
EsperarCuadro "la confirmación"
Retrato confirma
Tecla Return
EsperarCuadro "la pregunta por el ticket"
Retrato ticket
Tecla Return
EsperarCuadro "el mensaje de éxito"
Retrato exito
Tecla Return
EsperarPrincipal
Retrato emitida
ImprimirFactura

# The statement of that customer: from the list, which has the focus, back to the search field and to the list again.
Tecla F7
Retrato cuentas
Tecla Return
Retrato elegir
Tecla shift+Tab shift+Tab
Escribir "${CLIENTE#*|}"
Tecla Return Tab Tab Return
Retrato estado
Exportar estado.xls
Exportar estado.txt exportar

# A receipt with its slip.
Tecla Tab Return
Escribir 25,50
Retrato importe
Tecla Return Return
EsperarCuadro "la pregunta por el recibo"
Retrato recibo
Tecla Return
EsperarPrincipal
Retrato cobrado

# The return of the sale, the newest invoice, with its slip.
Tecla Tab Tab Tab space End space
Retrato devolver
Tecla Tab Return
EsperarCuadro "la pregunta por el comprobante"
Retrato comprobante
Tecla Return
EsperarPrincipal
Retrato devuelto

# The cash list; then the cash sheet of today, from the first of its dates on to the button, and back to the buttons.
Tecla shift+Tab shift+Tab space
Retrato contado
Tecla Tab space
Tecla Return Return Return Return Return
Retrato caja
Tecla $(printf 'shift+Tab %.0s' {1..6}) space
Retrato caja-botones
Tecla Tab Tab space
EsperarCuadro "la pregunta por la planilla"
Retrato planilla
Tecla Return
EsperarPrincipal

# The other windows, as they stand.
Modulo() {
    Tecla "$1"
    Retrato "$2"
}
Modulo F2 articulos
Exportar articulos.xls
Exportar articulos.txt
Modulo F3 proveedores
Modulo F4 clientes
Tecla F4 F9
EsperarCuadro "las opciones"
Retrato opciones
Tecla Escape
EsperarPrincipal

# The calculator beside a module, the statistics of both kinds, the keys.
Tecla F2 F5
EsperarCuadro "la calculadora"
Escribir '12*3.5'
Tecla Return
Retrato calculadora
Tecla F5 F2
EsperarPrincipal
Tecla F12
Retrato estadisticas
Tecla alt+v alt+b
Retrato estadisticas-ventas
Tecla F12 ctrl+k
EsperarCuadro "los atajos"
Retrato atajos
Tecla Escape
EsperarPrincipal

# Backup of everything, emptying the sales; then the sales come back from it.
Seleccionada() { [ "$(xdotool getactivewindow)" = "$RESPALDO" ]; }
Aceptar() {
    EsperarCuadro "$1"
    Retrato "$2"
    Tecla "${@:3}"
    Esperar 10 "la vuelta a la ventana de respaldo" Seleccionada
}
Tecla F6
EsperarCuadro "la ventana de respaldo"
readonly RESPALDO=$CUADRO
Tecla Tab Tab Tab Tab Tab space
Aceptar "el aviso de que se vaciarán las ventas" vaciar Return
Retrato respaldar
Tecla Tab Tab Tab Tab Tab Tab Tab Tab Tab space
Aceptar "el éxito del respaldo" respaldado Return
COPIA=$(find "$CARPETA/Respaldo" -mindepth 1 -type d)
[ "$(find "$COPIA" -name '*.mdb' | wc -l)" -eq 5 ] || Fallar "el respaldo no tiene los cinco archivos"
[ "$(sqlite3 "$COPIA/ventas.mdb" 'SELECT count(*) FROM Ventas')" -eq $((VENTAS + 3)) ] ||
    Fallar "faltan ventas en el respaldo"
cmp -s "$CARPETA/Datos/ventas.mdb" "$CARPETA/Datos/vacio/ventas.mdb" || Fallar "las ventas no quedaron vacías"
Tecla Down Tab Tab Tab Tab Tab space
Retrato recuperar
Tecla Tab Tab Tab Tab space
EsperarCuadro "la pregunta de la recuperación"
Retrato pregunta
Tecla Tab space
Aceptar "el éxito de la recuperación" recuperado Return
Tecla Escape
EsperarPrincipal

Terminado() { ! kill -0 "$PROGRAMA"; }
Salir() {
    Tecla alt+F4
    Esperar 15 "el fin del programa" Terminado
    wait "$PROGRAMA" || Fallar "el programa terminó con error"
}
Salir

# The users, whose window only this start shows: one is added.
Arrancar --directo --usuarios
Esperar 30 "la ventana principal" VentanaPrincipal
EsperarCuadro "los usuarios"
Tecla alt+n
Escribir Ana
Tecla Return Down Return
Escribir clave
Tecla Return
Escribir clave
Tecla Return
Retrato usuarios
Tecla alt+r
EsperarPrincipal
Salir
[ "$(Consultar config "SELECT codigo || articulo || precio FROM Usuarios")" = Anaclavek917 ] ||
    Fallar "el usuario no quedó guardado"

# What the files hold now.
[ "$(Consultar ventas 'SELECT count(*) FROM Ventas')" -eq $((VENTAS + 3)) ] || Fallar "no hay tres filas más"
Nueva() { Consultar ventas "SELECT idcliente, tipo, descripcion, numcomp, idoperador FROM Ventas WHERE id = $((VENTAS + $1))"; }
Exigir() { [ "$1" = "$2" ] || Fallar "la fila nueva es $1, se esperaba $2"; }
readonly ID=${CLIENTE%%|*}
MOMENTO=$(Consultar ventas "SELECT fecha || ' - ' || hora FROM Ventas WHERE numcomp = '$NUMERO'")
Exigir "$(Nueva 1)" "$ID|Credito|Factura crédito|$NUMERO|1"
Exigir "$(Nueva 2)" "$ID|Recibo|Recibo||"
Exigir "$(Nueva 3)" "$ID|NotaCredito|Nota de crédito ($MOMENTO)||"
[ "$(Consultar ventas "SELECT total FROM Ventas WHERE id = $((VENTAS + 2))")" = '$ 25,50' ] || Fallar "el recibo es de otro importe"
DESPUES=$(Existencias)
esperadas=$(awk '{ print $1 - 1, $2 - 1, $3 - 4 }' <<<"$ANTES")
[ "$DESPUES" = "$esperadas" ] || Fallar "existencias $DESPUES, se esperaban $esperadas"

# What was exported: a line for each article; the spreadsheet of the articles has no end record, the other one has.
Bytes() { od -An -tx1 | tr -d ' \n'; }
[ "$(wc -l <"$SALIDA/articulos.txt")" -eq "$(Consultar articulos 'SELECT count(*) FROM Articulos')" ] ||
    Fallar "el texto exportado no tiene todos los artículos"
[ "$(head -c 8 "$SALIDA/articulos.xls" | Bytes)" = 0900040002000a00 ] || Fallar "la hoja exportada no empieza bien"
[ "$(tail -c 4 "$SALIDA/articulos.xls" | Bytes)" != 0a000000 ] || Fallar "la hoja de los artículos está terminada"
[ "$(tail -c 4 "$SALIDA/estado.xls" | Bytes)" = 0a000000 ] || Fallar "la hoja del estado no está terminada"

# Imprimido <beginning of the file's name> <name of the picture> <text that must stand on it>
Imprimido() {
    local papel=("$CARPETA"/Impresos/"$1"*.pdf)
    [ -s "${papel[0]}" ] || Fallar "no hay $1 en Impresos"
    cp "${papel[0]}" "$SALIDA/$2.pdf"
    pdftoppm -png -r 150 -singlefile "$SALIDA/$2.pdf" "$SALIDA/$2"
    pdftotext -layout "$SALIDA/$2.pdf" - | grep -q "$3" || Fallar "$2 no dice: $3"
}
Imprimido factura-credito ticket 'Total c/Descuento'
Imprimido recibo recibo '25,50'
Imprimido nota nota-de-credito 'Nota de crédito'
Imprimido planilla planilla-de-caja 'PLANILLA DE CAJA'

sqlite3 -header -line "$CARPETA/Datos/ventas.mdb" "SELECT * FROM Ventas WHERE id > $VENTAS" | tee "$SALIDA/filas.txt"
echo "Existencias: antes $ANTES, después $DESPUES"
echo "Imágenes, papeles y filas nuevas: $SALIDA"
echo "Programa y datos del recorrido: $CARPETA"
