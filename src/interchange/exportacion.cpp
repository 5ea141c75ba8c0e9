#include "interchange/exportacion.h"

#include "desktop/listatexto.h"
#include "desktop/unalinea.h"
#include "desktop/windows1252.h"
#include "interchange/excelfile.h"
#include "interchange/tablaexportacion.h"

#include <QIODevice>

#include <algorithm>
#include <optional>
#include <string>

namespace tarvo {

namespace {

constexpr std::size_t kTanda = std::size_t{64} * 1024; // bytes that are written at a time

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

bool EsLlana(char letra) {
    return letra >= 0x20 && letra < 0x7F;
}

// The letter that the text begins with, when it is one of U+00A0 to U+00FF: the code page numbers these
// alike.
std::optional<char> Acentuada(std::string_view utf8) {
    const auto byte = [utf8](std::size_t i) { return static_cast<unsigned char>(utf8[i]); };
    if (utf8.size() < 2 || (byte(1) & 0xC0) != 0x80)
        return std::nullopt;
    if (byte(0) != 0xC3 && (byte(0) != 0xC2 || byte(1) < 0xA0))
        return std::nullopt;
    return static_cast<char>((byte(0) & 3) << 6 | (byte(1) & 0x3F));
}

// One cell in Windows-1252. Plain letters are copied and accents computed, which is nearly every text; a rest
// with anything else is converted.
void AgregarCelda(std::string &tanda, std::string_view utf8) {
    while (true) {
        const auto llanas = static_cast<std::size_t>(std::ranges::find_if_not(utf8, EsLlana) - utf8.begin());
        tanda.append(utf8.data(), llanas);
        utf8.remove_prefix(llanas);
        const std::optional<char> letra = Acentuada(utf8);
        if (!letra)
            break;
        tanda += *letra;
        utf8.remove_prefix(2);
    }
    if (!utf8.empty())
        tanda += AWindows1252(EnUnaLinea(QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()))))
                     .toStdString();
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
        salida.write(tanda.data(), static_cast<qint64>(tanda.size()));
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
