// The writers of the export: bytes, layouts, limits.
#include "interchange/excelfile.h"
#include "listaexportada.h"

#include <QProcess>
#include <QTemporaryDir>

namespace tarvo {
namespace {

QByteArray Hex(const char *texto) {
    return QByteArray::fromHex(texto);
}

TEST(Hoja, IsTheseBytes) {
    QBuffer salida;
    salida.open(QIODevice::WriteOnly);
    ExcelFile hoja(salida);
    hoja.OpenFile();
    hoja.EWriteString(3, 3, QStringLiteral("Año €"));
    hoja.EWriteString(255, 255, QString());
    hoja.EWriteInteger(1, 2, 0x1234);
    hoja.CloseFile();
    EXPECT_EQ(salida.data(), Hex("0900 0400 0200 0A00"
                                 "0400 0D00 0200 0200 000000 05 41F16F2080"
                                 "0400 0800 FE00 FE00 000000 00"
                                 "0200 0900 0000 0100 000000 34 12"
                                 "0A00 0000"));
}

TEST(Hoja, ACellBeyondAByteRaisesAndWritesNothing) {
    QBuffer salida;
    salida.open(QIODevice::WriteOnly);
    ExcelFile hoja(salida);
    const QString larga(247, QLatin1Char('x'));
    hoja.EWriteString(1, 1, larga);
    EXPECT_EQ(salida.data().left(12), Hex("0400 FF00 0000 0000 000000 F7"));
    const QByteArray antes = salida.data();
    EXPECT_THROW(hoja.EWriteString(1, 1, larga + larga.at(0)), DesbordeHoja);
    EXPECT_THROW(hoja.EWriteString(256, 1, larga), DesbordeHoja);
    EXPECT_THROW(hoja.EWriteString(1, 256, larga), DesbordeHoja);
    EXPECT_THROW(hoja.EWriteString(0, 1, larga), DesbordeHoja);
    EXPECT_THROW(hoja.EWriteInteger(1, 1, 65536), DesbordeHoja);
    EXPECT_EQ(salida.data(), antes);
}

// In the accounts the cells stand one or two columns off their heads.
TEST(Hoja, EachListHasItsLayout) {
    const char *const casos[][2] = {
        {"LVClientes", "3:3 Listado de clientes|5:2 Código|5:3 Nombre|5:5 Nombre fiscal|5:7 Id. Fiscal|"
                       "5:9 Teléfono|7:2 1.0|7:3 1.1|7:5 1.2|7:7 1.3|7:9 1.4|8:2 2.0|8:3 2.1|8:5 2.2|8:7 2.3|"
                       "8:9 2.4"},
        {"LVArticulos",
         "3:3 Listado de artículos|5:2 Código|5:3 Artículo|5:6 Stock|5:8 P.Compra|5:10 Subotal|5:12 P.Venta|"
         "7:2 1.0|7:3 1.1|7:6 1.2|7:8 1.3|7:10 1.4|7:12 1.5|8:2 2.0|8:3 2.1|8:6 2.2|8:8 2.3|8:10 2.4|"
         "8:12 2.5"},
        {"LVProveedores", "3:3 Listado de proveedores|5:2 Código|5:3 Nombre|5:5 Nombre fiscal|5:7 Id. Fiscal|"
                          "5:9 Teléfono|7:2 1.0|7:3 1.1|7:5 1.2|7:7 1.3|7:9 1.4|8:2 2.0|8:3 2.1|8:5 2.2|"
                          "8:7 2.3|8:9 2.4"},
        {"LVEstadoContado",
         "3:3 Listado de ventas contado|5:2 Fecha|5:3 Hora|5:4 Detalle|5:6 Subtotal|7:2 1.0|7:3 1.1|7:4 1.2|"
         "7:6 1.3|8:2 2.0|8:3 2.1|8:4 2.2|8:6 2.3|10:5 Total|10:6 $ 3,00"},
        {"LVEstado", "3:3 Estado de cuenta|5:2 Cliente: Ana|7:2 Fecha|7:3 Detalle|7:5 Debe|7:7 Haber|"
                     "7:9 Subtotal|9:2 1.0|9:3 1.1|9:5 1.2|9:7 1.3|9:9 1.4|10:2 2.0|10:3 2.1|10:5 2.2|"
                     "10:7 2.3|10:9 2.4|12:8 Saldo|12:9 $ 3,00"},
        {"LVCaja", "3:3 Planilla de caja|7:2 Fecha|7:3 Hora|7:4 Detalle|7:6 Debe|7:8 Haber|7:10 Subtotal|"
                   "9:2 1.0|9:3 1.1|9:4 1.2|9:6 1.3|9:8 1.4|9:10 1.5|10:2 2.0|10:3 2.1|10:4 2.2|10:6 2.3|"
                   "10:8 2.4|10:10 2.5|12:9 Saldo|12:10 $ 3,00"},
    };
    for (const auto &[control, celdas] : casos) {
        const HojaLeida hoja(
            ListaExportada(2).Hoja(control, QStringLiteral("$ 3,00"), QStringLiteral("Ana")));
        EXPECT_EQ(hoja.Texto(), celdas);
        EXPECT_EQ(hoja.terminada, std::string_view(control) != "LVArticulos") << control;
    }
}

// Last cell and end record by number of rows. The articles walk 254 rows whatever there are.
TEST(Hoja, EndsWhereItsRowsOverflow) {
    const struct {
        const char *control;
        int filas;
        const char *ultima;
        bool terminada;
    } casos[] = {
        {"LVClientes", 0, "5:9 Teléfono", true},        {"LVClientes", 249, "255:9 249.4", true},
        {"LVClientes", 250, "255:9 249.4", false},      {"LVClientes", 300, "255:9 249.4", false},
        {"LVArticulos", 0, "5:12 P.Venta", false},      {"LVArticulos", 249, "255:12 249.5", false},
        {"LVArticulos", 254, "255:12 249.5", false},    {"LVArticulos", 255, "255:12 249.5", false},
        {"LVEstadoContado", 0, "8:6 $ 3,00", true},     {"LVEstadoContado", 247, "255:6 $ 3,00", true},
        {"LVEstadoContado", 248, "254:6 248.3", false}, {"LVEstado", 0, "10:9 $ 3,00", true},
        {"LVEstado", 245, "255:9 $ 3,00", true},        {"LVEstado", 247, "255:9 247.4", false},
        {"LVCaja", 248, "255:10 247.5", false},
    };
    for (const auto &caso : casos) {
        const HojaLeida hoja(ListaExportada(caso.filas).Hoja(caso.control, QStringLiteral("$ 3,00")));
        EXPECT_EQ(hoja.celdas.last().toStdString(), caso.ultima) << caso.control << ' ' << caso.filas;
        EXPECT_EQ(hoja.terminada, caso.terminada) << caso.control << ' ' << caso.filas;
    }
}

TEST(Hoja, EndsAtATextThatIsTooLong) {
    const QString larga(247, QLatin1Char('n'));
    const ListaExportada cabe({{QStringLiteral("1"), larga}});
    EXPECT_TRUE(HojaLeida(cabe.Hoja("LVClientes")).terminada);
    const ListaExportada noCabe({{QStringLiteral("1"), larga + QLatin1Char('n')}, {QStringLiteral("2")}});
    const HojaLeida hoja(noCabe.Hoja("LVClientes"));
    EXPECT_EQ(hoja.celdas.last(), QStringLiteral("7:2 1"));
    EXPECT_FALSE(hoja.terminada);
}

TEST(Texto, HasALineForEachRowInTheOrderOnScreenAndNothingElse) {
    ListaExportada datos({{QStringLiteral("b"), QStringLiteral("Peña, \"Luis\""), QStringLiteral("€"),
                           QStringLiteral("\u4e00x\U0001F600"), QStringLiteral("$ 1,50"), QStringLiteral("f"),
                           QStringLiteral("g")},
                          {QStringLiteral("a"), QStringLiteral("dos\r\nlíneas")}});
    datos.lista.Ordenar(0, Qt::AscendingOrder);
    const QByteArray cuatro = "a,dos  l\xEDneas,,\r\nb,Pe\xF1"
                              "a, \"Luis\",\x80,?x?";
    const QByteArray cinco = "a,dos  l\xEDneas,,,\r\nb,Pe\xF1"
                             "a, \"Luis\",\x80,?x?,$ 1,50";
    const QByteArray seis = "a,dos  l\xEDneas,,,,\r\nb,Pe\xF1"
                            "a, \"Luis\",\x80,?x?,$ 1,50,f";
    EXPECT_EQ(datos.Texto("LVEstadoContado"), cuatro + "\r\n");
    for (const char *control : {"LVClientes", "LVProveedores", "LVEstado"})
        EXPECT_EQ(datos.Texto(control), cinco + "\r\n") << control;
    for (const char *control : {"LVArticulos", "LVCaja"})
        EXPECT_EQ(datos.Texto(control), seis + "\r\n") << control;
    EXPECT_EQ(ListaExportada().Texto("LVClientes"), QByteArray());
    EXPECT_EQ(ListaExportada(20'000).Texto("LVArticulos").count("\r\n"), 20'000);
}

// Runs a Python program on the bytes, which prints rows of cells; none when it or its reader is not
// installed.
std::optional<QString> LeidoPor(const char *programa, const QByteArray &bytes) {
    QTemporaryDir carpeta;
    QFile archivo(carpeta.filePath(QStringLiteral("exportado")));
    EXPECT_TRUE(archivo.open(QIODevice::WriteOnly));
    archivo.write(bytes);
    archivo.close();
    QProcess python;
    python.start(QStringLiteral("/usr/bin/python3"),
                 {QStringLiteral("-c"), QString::fromUtf8(programa), archivo.fileName()});
    if (!python.waitForFinished(60'000) || python.exitCode() == 77)
        return std::nullopt;
    EXPECT_EQ(python.exitCode(), 0) << python.readAllStandardError().toStdString();
    return QString::fromUtf8(python.readAllStandardOutput()).trimmed();
}

TEST(OtroLector, ReadsTheCellsOfTheSpreadsheet) {
    // That reader insists on the document type of a worksheet.
    const std::optional<QString> leido =
        LeidoPor(R"(
import sys
try:
    import xlrd
except ImportError:
    sys.exit(77)
datos = bytearray(open(sys.argv[1], 'rb').read())
datos[6] = 0x10
hoja = xlrd.open_workbook(file_contents=bytes(datos), encoding_override='cp1252').sheet_by_index(0)
for f in range(hoja.nrows):
    if any(hoja.row_values(f)):
        sys.stdout.buffer.write(('|'.join(hoja.row_values(f)) + '\n').encode())
)",
                 ListaExportada({{QStringLiteral("1"), QStringLiteral("Peña €"), QStringLiteral("SRL"),
                                  QStringLiteral("30-1"), QStringLiteral("$ 12,50")}})
                     .Hoja("LVClientes"));
    if (!leido)
        GTEST_SKIP() << "python3-xlrd is not installed";
    EXPECT_EQ(leido->toStdString(), "||Listado de clientes||||||\n"
                                    "|Código|Nombre||Nombre fiscal||Id. Fiscal||Teléfono\n"
                                    "|1|Peña €||SRL||30-1||$ 12,50");
}

TEST(OtroLector, ReadsTheFieldsOfTheText) {
    const std::optional<QString> leido =
        LeidoPor(R"(
import csv, sys
for fila in csv.reader(open(sys.argv[1], encoding='cp1252', newline='')):
    sys.stdout.buffer.write(('|'.join(fila) + '\n').encode())
)",
                 ListaExportada({{QStringLiteral("1"), QStringLiteral("Peña"), QStringLiteral("a"),
                                  QStringLiteral("b"), QStringLiteral("$ 12,50")}})
                     .Texto("LVProveedores"));
    if (!leido)
        GTEST_SKIP() << "python3 is not installed";
    EXPECT_EQ(leido->toStdString(), "1|Peña|a|b|$ 12|50") << "a comma in a value makes another field";
}

} // namespace
} // namespace tarvo
