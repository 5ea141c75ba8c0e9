#!/usr/bin/env bash
# One sale in the real program, by real keys on a screen of its own, on a fresh sample shop. Leaves the pictures of
# each stage, the ticket and the row of the sale in salida/, and fails when anything is not as it must be.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
source tools/pantalla.sh

readonly SALIDA=$PWD/salida CARPETA=$PWD/build/recorrido NUMERO=0001-00009001
rm -rf "$SALIDA" "$CARPETA"
mkdir -p "$SALIDA" "$CARPETA/ajustes" "$CARPETA/registros"
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
Modulo F2 13-articulos
Modulo F3 14-proveedores
Modulo F4 15-clientes
Tecla F4 F9
EsperarCuadro "las opciones"
Foto "$SALIDA/16-opciones.png"
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
