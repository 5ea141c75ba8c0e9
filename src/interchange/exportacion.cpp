#include "interchange/exportacion.h"

#include "desktop/listatexto.h"
#include "desktop/unalinea.h"
#include "desktop/windows1252.h"
#include "interchange/excelfile.h"
#include "interchange/tablaexportacion.h"

#include <QIODevice>

namespace tarvo {

namespace {

constexpr std::size_t kTanda = std::size_t{64} * 1024; // bytes that are encoded and written at a time

void EscribirCabecera(ExcelFile &hoja, const TablaExportacion &tabla, const Exportable &lo) {
    hoja.EWriteString(3, 3, tabla.titulo);
    if (tabla.cliente)
        hoja.EWriteString(5, 2, QStringLiteral("Cliente: ") + lo.cliente);
    for (const ColumnaHoja &columna : tabla.columnas)
        hoja.EWriteString(tabla.filaCabecera, columna.numero, columna.cabecera);
}

// False when the walk asks for a row that the list does not have.
bool EscribirFilas(ExcelFile &hoja, const TablaExportacion &tabla, const ListaTexto &lista) {
    const int filas = tabla.filasFijas > 0 ? tabla.filasFijas : lista.Filas();
    for (int i = 1; i <= filas; ++i) {
        if (i > lista.Filas())
            return false;
        for (int columna = 0; const ColumnaHoja &enHoja : tabla.columnas)
            hoja.EWriteString(tabla.FilaDato(i), enHoja.numero, EnUnaLinea(lista.Celda(i - 1, columna++)));
    }
    return true;
}

void EscribirPie(ExcelFile &hoja, const TablaExportacion &tabla, const Exportable &lo) {
    if (tabla.pie.isEmpty())
        return;
    const int fila = tabla.FilaPie(lo.lista->Filas());
    hoja.EWriteString(fila, tabla.columnaPie, tabla.pie);
    hoja.EWriteString(fila, tabla.columnaPie + 1, lo.saldo);
}

// The cell has something that is shown as a blank: a control character, a line or paragraph separator.
bool CortaLinea(std::string_view utf8) {
    for (std::size_t i = 0; i < utf8.size(); ++i) {
        const auto byte = static_cast<unsigned char>(utf8[i]);
        const auto sigue = [&](std::size_t n) {
            return i + n < utf8.size() ? static_cast<unsigned char>(utf8[i + n]) : 0U;
        };
        if (byte < 0x20 || byte == 0x7F || (byte == 0xC2 && sigue(1) < 0xA0) ||
            (byte == 0xE2 && sigue(1) == 0x80 && (sigue(2) == 0xA8 || sigue(2) == 0xA9)))
            return true;
    }
    return false;
}

void AgregarCelda(std::string &linea, std::string_view utf8) {
    if (CortaLinea(utf8))
        linea +=
            EnUnaLinea(QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()))).toStdString();
    else
        linea += utf8;
}

} // namespace

void EscribirHoja(QIODevice &salida, const TablaExportacion &tabla, const Exportable &lo) {
    ExcelFile hoja(salida);
    hoja.OpenFile();
    try {
        EscribirCabecera(hoja, tabla, lo);
        if (!EscribirFilas(hoja, tabla, *lo.lista))
            return;
        EscribirPie(hoja, tabla, lo);
    } catch (const DesbordeHoja &) {
        return;
    }
    hoja.CloseFile();
}

void EscribirTexto(QIODevice &salida, const TablaExportacion &tabla, const ListaTexto &lista) {
    const int campos = static_cast<int>(tabla.columnas.size());
    std::string tanda;
    const auto escribir = [&] {
        salida.write(AWindows1252(QString::fromStdString(tanda)));
        tanda.clear();
    };
    for (int fila = 0; fila < lista.Filas(); ++fila) {
        for (int campo = 0; campo < campos; ++campo) {
            if (campo > 0)
                tanda += ',';
            AgregarCelda(tanda, lista.CeldaUtf8(fila, campo));
        }
        tanda += "\r\n";
        if (tanda.size() >= kTanda)
            escribir();
    }
    escribir();
}

} // namespace tarvo
