#!/usr/bin/env bash
# One sale in the real program, by real keys on a screen of its own, on a fresh sample shop; then its customer's
# statement, a receipt, the return of the sale, the cash list and the cash sheet of the day. Leaves the pictures of
# each stage, everything printed and the new rows in salida/, and fails when anything is not as it must be.
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

# From the discount on to the button that issues.
Tecla alt+d Tab space
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

# The statement of that customer: from the list, which has the focus, back to the search field and to the list again.
Tecla F7
Foto "$SALIDA/13-cuentas.png"
Tecla Return
Foto "$SALIDA/14-elegir.png"
Tecla shift+Tab shift+Tab
Escribir "${CLIENTE#*|}"
Tecla Return Tab Tab Return
Foto "$SALIDA/15-estado.png"

# A receipt with its slip.
Tecla Tab Return
Escribir 25,50
Foto "$SALIDA/16-importe.png"
Tecla Return Return
EsperarCuadro "la pregunta por el recibo"
Foto "$SALIDA/17-recibo.png"
Tecla Return
EsperarPrincipal
Foto "$SALIDA/18-cobrado.png"

# The return of the sale, the newest invoice, with its slip.
Tecla Tab Tab Tab space End space
Foto "$SALIDA/19-devolver.png"
Tecla Tab Return
EsperarCuadro "la pregunta por el comprobante"
Foto "$SALIDA/20-comprobante.png"
Tecla Return
EsperarPrincipal
Foto "$SALIDA/21-devuelto.png"

# The cash list; then the cash sheet of today, from the first of its dates on to the button, and back to the buttons.
Tecla shift+Tab shift+Tab space
Foto "$SALIDA/22-contado.png"
Tecla Tab space
Tecla Return Return Return Return Return
Foto "$SALIDA/23-caja.png"
Tecla $(printf 'shift+Tab %.0s' {1..12}) space
Foto "$SALIDA/24-caja-botones.png"
Tecla Tab Tab space
EsperarCuadro "la pregunta por la planilla"
Foto "$SALIDA/25-planilla.png"
Tecla Return
EsperarPrincipal

# The other windows, as they stand.
Modulo() {
    Tecla "$1"
    Foto "$SALIDA/$2.png"
}
Modulo F2 26-articulos
Modulo F3 27-proveedores
Modulo F4 28-clientes
Tecla F4 F9
EsperarCuadro "las opciones"
Foto "$SALIDA/29-opciones.png"
Tecla Escape
EsperarPrincipal

Tecla alt+F4
Terminado() { ! kill -0 "$PROGRAMA"; }
Esperar 15 "el fin del programa" Terminado
wait "$PROGRAMA" || Fallar "el programa terminó con error"

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

# Imprimido <beginning of the file's name> <name of the picture> <text that must stand on it>
Imprimido() {
    local papel=("$CARPETA"/Impresos/"$1"*.pdf)
    [ -s "${papel[0]}" ] || Fallar "no hay $1 en Impresos"
    cp "${papel[0]}" "$SALIDA/$2.pdf"
    pdftoppm -png -r 150 -singlefile "$SALIDA/$2.pdf" "$SALIDA/$2"
    pdftotext -layout "$SALIDA/$2.pdf" - | grep -q "$3" || Fallar "$2 no dice: $3"
}
Imprimido factura ticket 'Total c/Descuento'
Imprimido recibo recibo '25,50'
Imprimido nota nota-de-credito 'Nota de crédito'
Imprimido planilla planilla-de-caja 'PLANILLA DE CAJA'

sqlite3 -header -line "$CARPETA/Datos/ventas.mdb" "SELECT * FROM Ventas WHERE id > $VENTAS" | tee "$SALIDA/filas.txt"
echo "Existencias: antes $ANTES, después $DESPUES"
echo "Imágenes, papeles y filas nuevas: $SALIDA"
echo "Programa y datos del recorrido: $CARPETA"
