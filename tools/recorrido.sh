#!/usr/bin/env bash
# One sale in the real program, by real keys on a screen of its own, on a fresh sample shop; exports, a backup that
# empties the sales, and their restore. Leaves the pictures of each stage, the exported files, the ticket and the row
# of the sale in salida/, and fails when anything is not as it must be.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
source tools/pantalla.sh

readonly SALIDA=$PWD/salida CARPETA=$PWD/build/recorrido NUMERO=0001-00009001
rm -rf "$SALIDA" "$CARPETA"
mkdir -p "$SALIDA" "$CARPETA/ajustes" "$CARPETA/registros"
mkdir "$CARPETA/Respaldo"
cp build/release/tarvo "$CARPETA/tarvo"
build/release/muestra "$CARPETA"

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
XDG_CONFIG_HOME="$CARPETA/ajustes" QT_QPA_PLATFORM=xcb Iniciar "$CARPETA/tarvo"
HaySplash() { [ -n "$(VentanasVisibles)" ]; }
Esperar 20 "el splash" HaySplash
Foto "$SALIDA/01-splash.png"
Esperar 30 "la ventana principal" VentanaPrincipal
EsperarPrincipal
Foto "$SALIDA/02-principal.png"

# The sale: two scans of one unit; of the third article four units.
Tecla F8
Foto "$SALIDA/03-ventas.png"
for barra in "${BARRAS[0]}" "${BARRAS[1]}"; do
    Escribir "$barra"
    Tecla Return Return
done
Escribir "${BARRAS[2]}"
Tecla Return shift+Tab
Escribir 4
Foto "$SALIDA/04-cantidad.png"
Tecla Return
Foto "$SALIDA/05-lineas.png"

# The customer: from the search field on to the button, then search and accept in the panel.
Tecla Tab Tab Tab Tab Tab Tab Tab space
Escribir "${CLIENTE#*|}"
Tecla Return
Foto "$SALIDA/06-clientes.png"
Tecla Tab Tab Tab space
Foto "$SALIDA/07-cliente.png"

# Discount, and back from there: seller, document number, credit.
Tecla alt+d
Escribir 10
Tecla shift+Tab Down shift+Tab
Escribir "$NUMERO"
Tecla shift+Tab space
Foto "$SALIDA/08-completa.png"

Tecla ctrl+Return
EsperarCuadro "la confirmación"
Foto "$SALIDA/09-confirma.png"
Tecla Return
EsperarCuadro "la pregunta por el ticket"
Foto "$SALIDA/10-ticket.png"
Tecla Return
EsperarCuadro "el mensaje de éxito"
Foto "$SALIDA/11-exito.png"
Tecla Return
EsperarPrincipal
Foto "$SALIDA/12-emitida.png"

# The other windows, as they stand.
Modulo() {
    Tecla "$1"
    Foto "$SALIDA/$2.png"
}
# Exports the list on screen to that file of salida/.
Exportar() {
    Tecla ctrl+F6
    EsperarCuadro "el diálogo de exportar"
    Escribir "$SALIDA/$1"
    [ -z "${2:-}" ] || Foto "$SALIDA/$2.png"
    Tecla Return
    EsperarPrincipal
    Esperar 10 "el archivo $1" test -s "$SALIDA/$1"
}
Modulo F2 13-articulos
Exportar articulos.xls
Exportar articulos.txt 13-exportar
Modulo F3 14-proveedores
Modulo F4 15-clientes
Tecla F4 F9
EsperarCuadro "las opciones"
Foto "$SALIDA/16-opciones.png"
Tecla Escape
EsperarPrincipal

# Backup of everything, emptying the sales; then the sales come back from it.
Seleccionada() { [ "$(xdotool getactivewindow)" = "$RESPALDO" ]; }
Aceptar() {
    EsperarCuadro "$1"
    Foto "$SALIDA/$2.png"
    Tecla "${@:3}"
    Esperar 10 "la vuelta a la ventana de respaldo" Seleccionada
}
Tecla F6
EsperarCuadro "la ventana de respaldo"
readonly RESPALDO=$CUADRO
Tecla Tab Tab Tab Tab Tab space
Aceptar "el aviso de que se vaciarán las ventas" 17-vaciar Return
Foto "$SALIDA/18-respaldar.png"
Tecla Tab Tab Tab Tab Tab Tab Tab Tab Tab space
Aceptar "el éxito del respaldo" 19-respaldado Return
COPIA=$(find "$CARPETA/Respaldo" -mindepth 1 -type d)
[ "$(find "$COPIA" -name '*.mdb' | wc -l)" -eq 5 ] || Fallar "el respaldo no tiene los cinco archivos"
[ "$(sqlite3 "$COPIA/ventas.mdb" 'SELECT count(*) FROM Ventas')" -eq $((VENTAS + 1)) ] ||
    Fallar "faltan ventas en el respaldo"
cmp -s "$CARPETA/Datos/ventas.mdb" "$CARPETA/Datos/vacio/ventas.mdb" || Fallar "las ventas no quedaron vacías"
Tecla Down Tab Tab Tab Tab Tab space
Foto "$SALIDA/20-recuperar.png"
Tecla Tab Tab Tab Tab space
EsperarCuadro "la pregunta de la recuperación"
Foto "$SALIDA/21-pregunta.png"
Tecla Tab space
Aceptar "el éxito de la recuperación" 22-recuperado Return
Tecla Escape
EsperarPrincipal

Tecla alt+F4
Terminado() { ! kill -0 "$PROGRAMA"; }
Esperar 15 "el fin del programa" Terminado
wait "$PROGRAMA" || Fallar "el programa terminó con error"

# What the files hold now.
[ "$(Consultar ventas 'SELECT count(*) FROM Ventas')" -eq $((VENTAS + 1)) ] || Fallar "no hay una venta más"
Consultar ventas "SELECT idcliente, tipo, descripcion, numcomp, idoperador FROM Ventas ORDER BY id DESC LIMIT 1" |
    grep -qx "${CLIENTE%%|*}|Credito|Factura crédito|$NUMERO|1" || Fallar "la fila de la venta no es la esperada"
DESPUES=$(Existencias)
esperadas=$(awk '{ print $1 - 1, $2 - 1, $3 - 4 }' <<<"$ANTES")
[ "$DESPUES" = "$esperadas" ] || Fallar "existencias $DESPUES, se esperaban $esperadas"

# What was exported: a line for each article; the spreadsheet of the articles has no end record.
[ "$(wc -l <"$SALIDA/articulos.txt")" -eq "$(Consultar articulos 'SELECT count(*) FROM Articulos')" ] ||
    Fallar "el texto exportado no tiene todos los artículos"
[ "$(head -c 8 "$SALIDA/articulos.xls" | od -An -tx1 | tr -d ' \n')" = 0900040002000a00 ] || Fallar "la hoja exportada no empieza bien"

ticket=("$CARPETA"/Impresos/*.pdf)
[ -s "${ticket[0]}" ] || Fallar "no hay ticket en Impresos"
cp "${ticket[0]}" "$SALIDA/ticket.pdf"
pdftoppm -png -r 150 -singlefile "$SALIDA/ticket.pdf" "$SALIDA/ticket"
pdftotext -layout "$SALIDA/ticket.pdf" - | grep -q 'Total c/Descuento' || Fallar "el ticket no tiene total"

sqlite3 -header -line "$CARPETA/Datos/ventas.mdb" 'SELECT * FROM Ventas ORDER BY id DESC LIMIT 1' |
    tee "$SALIDA/venta.txt"
echo "Existencias: antes $ANTES, después $DESPUES"
echo "Imágenes, ticket y fila de la venta: $SALIDA"
echo "Programa y datos del recorrido: $CARPETA"
