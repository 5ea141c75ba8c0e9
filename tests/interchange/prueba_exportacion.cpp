// The export: what is written, byte for byte, its layouts and limits; the file that is picked, replaced, or
// left alone.
#include "desktop/listatexto.h"
#include "desktop/unalinea.h"
#include "desktop/windows1252.h"
#include "interchange/excelfile.h"
#include "interchange/exportacion.h"
#include "interchange/mnuexportar.h"
#include "interchange/tablaexportacion.h"
#include "interchange/tandatexto.h"
#include "store/store.h"
#include "testkit/archivos.h"
#include "testkit/preguntasguion.h"

#include <QBuffer>
#include <QProcess>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <optional>

namespace tarvo {
namespace {

// A list of nine columns, as many as any that is exported.
class ListaExportada {
  public:
    explicit ListaExportada(const QList<QStringList> &filas = {}) {
        for (const QStringList &fila : filas)
            lista.AgregarFila(fila);
    }
    // `filas` rows whose cells are their numbers, as "7.2": row 7, column 2.
    explicit ListaExportada(int filas) {
        for (int i = 1; i <= filas; ++i) {
            QStringList fila;
            for (int columna = 0; columna < 9; ++columna)
                fila << u"%1.%2"_qs.arg(i).arg(columna);
            lista.AgregarFila(fila);
        }
    }

    QByteArray Hoja(const char *control, const QString &saldo = {}, const QString &cliente = {}) const {
        const QString nombre = QString::fromLatin1(control);
        return Escrito([&](QIODevice &salida) {
            EscribirHoja(salida, *TablaDe(nombre), {&lista, nombre, saldo, cliente});
        });
    }
    QByteArray Texto(const char *control) const {
        return Escrito(
            [&](QIODevice &salida) { EscribirTexto(salida, *TablaDe(QString::fromLatin1(control)), lista); });
    }

    ListaTexto lista{std::vector<ColumnaLista>(9)};

  private:
    template <typename Escritor> static QByteArray Escrito(Escritor escribir) {
        QBuffer salida;
        salida.open(QIODevice::WriteOnly);
        escribir(salida);
        return salida.data();
    }
};

// The cells of a spreadsheet in the order of the file, each "row:column text".
struct HojaLeida {
    QStringList celdas;
    bool terminada = false; // ends with its end record

    explicit HojaLeida(const QByteArray &bytes) {
        const auto numero = [&](qsizetype i) {
            return int(quint8(bytes.at(i))) + 256 * int(quint8(bytes.at(i + 1)));
        };
        for (qsizetype i = 0; i + 4 <= bytes.size(); i += 4 + numero(i + 2)) {
            terminada = numero(i) == 0x0A && i + 4 == bytes.size();
            if (numero(i) == 0x04)
                celdas << u"%1:%2 %3"_qs.arg(numero(i + 4) + 1)
                              .arg(numero(i + 6) + 1)
                              .arg(DeWindows1252(bytes.mid(i + 12, quint8(bytes.at(i + 11)))));
        }
    }
    std::string Texto() const { return celdas.join(u'|').toStdString(); }
};

QByteArray Hex(const char *texto) {
    return QByteArray::fromHex(texto);
}

TEST(Hoja, IsTheseBytes) {
    QBuffer salida;
    salida.open(QIODevice::WriteOnly);
    ExcelFile hoja(salida);
    hoja.OpenFile();
    hoja.EWriteString(3, 3, u"Año €"_qs);
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
    const QString larga(247, u'x');
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
        const HojaLeida hoja(ListaExportada(2).Hoja(control, u"$ 3,00"_qs, u"Ana"_qs));
        EXPECT_EQ(hoja.Texto(), celdas);
        EXPECT_EQ(hoja.terminada, std::string_view(control) != "LVArticulos") << control;
    }
}

// Last cell and end record by number of rows. The articles walk 254 rows whatever there are.
TEST(Hoja, EndsWhereItsRowsOverflow) {
    const std::tuple<const char *, int, const char *, bool> casos[] = {
        {"LVClientes", 0, "5:9 Teléfono", true},        {"LVClientes", 249, "255:9 249.4", true},
        {"LVClientes", 250, "255:9 249.4", false},      {"LVClientes", 300, "255:9 249.4", false},
        {"LVArticulos", 0, "5:12 P.Venta", false},      {"LVArticulos", 249, "255:12 249.5", false},
        {"LVArticulos", 254, "255:12 249.5", false},    {"LVArticulos", 255, "255:12 249.5", false},
        {"LVEstadoContado", 0, "8:6 $ 3,00", true},     {"LVEstadoContado", 247, "255:6 $ 3,00", true},
        {"LVEstadoContado", 248, "254:6 248.3", false}, {"LVEstado", 0, "10:9 $ 3,00", true},
        {"LVEstado", 245, "255:9 $ 3,00", true},        {"LVEstado", 247, "255:9 247.4", false},
        {"LVCaja", 248, "255:10 247.5", false},
    };
    for (const auto &[control, filas, ultima, terminada] : casos) {
        const HojaLeida hoja(ListaExportada(filas).Hoja(control, u"$ 3,00"_qs));
        EXPECT_EQ(hoja.celdas.last().toStdString(), ultima) << control << ' ' << filas;
        EXPECT_EQ(hoja.terminada, terminada) << control << ' ' << filas;
    }
}

TEST(Hoja, EndsAtATextThatIsTooLong) {
    const QString larga(247, u'n');
    const ListaExportada cabe({{u"1"_qs, larga}});
    EXPECT_TRUE(HojaLeida(cabe.Hoja("LVClientes")).terminada);
    const ListaExportada noCabe({{u"1"_qs, larga + u'n'}, {u"2"_qs}});
    const HojaLeida hoja(noCabe.Hoja("LVClientes"));
    EXPECT_EQ(hoja.celdas.last(), u"7:2 1");
    EXPECT_FALSE(hoja.terminada);
}

TEST(Texto, HasALineForEachRowInTheOrderOnScreenAndNothingElse) {
    ListaExportada datos(
        {{u"b"_qs, u"Peña, \"Luis\""_qs, u"€"_qs, u"\u4e00x\U0001F600"_qs, u"$ 1,50"_qs, u"f"_qs, u"g"_qs},
         {u"a"_qs, u"dos\r\nlíneas"_qs}});
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

// Letters are copied eight by eight: wherever in a cell one stands, it comes out the same.
TEST(Texto, ALetterIsTheSameAtAnyPlaceOfItsCell) {
    for (const char *letra : {"", "é", "ÿ", "€", "\t", "\x7F", "\u0085", "\u2028", "\u4e00"})
        for (const int antes : {0, 1, 3, 4, 6, 7, 8, 9, 15})
            for (const int despues : {0, 1, 2, 7, 8, 70}) {
                const QString texto =
                    QString(antes, u'a') + QString::fromUtf8(letra) + QString(despues, u'z');
                QBuffer salida;
                salida.open(QIODevice::WriteOnly);
                TandaTexto tanda(salida);
                tanda.Celda(texto.toStdString());
                tanda.Terminar();
                ASSERT_EQ(salida.data(), AWindows1252(EnUnaLinea(texto))) << letra << antes << ' ' << despues;
            }
}

TEST(Texto, ACellMayBeLargerThanAPieceOfTheFile) {
    QBuffer salida;
    salida.open(QIODevice::WriteOnly);
    TandaTexto tanda(salida);
    const std::string enorme(5'000'000, 'x');
    for (const std::string &celda : {std::string("a"), enorme, std::string("b")})
        tanda.Celda(celda);
    tanda.Terminar();
    EXPECT_TRUE(salida.data() == "a" + QByteArray::fromStdString(enorme) + "b");
}

// What a program in Python prints that is given the path of a file with `datos`; nothing where it ends
// with 77.
std::optional<QByteArray> LeidoPor(const char *programa, const QByteArray &datos) {
    QTemporaryDir carpeta;
    const QString archivo = carpeta.filePath(u"exportado"_qs);
    Escribir(archivo, datos);
    QProcess python;
    python.start(u"/usr/bin/python3"_qs, {u"-c"_qs, QString::fromUtf8(programa), archivo});
    if (!python.waitForFinished(60'000) || python.exitCode() == 77)
        return {};
    EXPECT_EQ(python.readAllStandardError(), "");
    return python.readAllStandardOutput();
}

// That reader insists on the document type of a worksheet.
TEST(OtroLector, ReadsTheCellsOfTheSpreadsheet) {
    const auto leido = LeidoPor(
        R"(
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
        ListaExportada({{u"1"_qs, u"Peña €"_qs, u"SRL"_qs, u"30-1"_qs, u"$ 12,50"_qs}}).Hoja("LVClientes"));
    if (!leido)
        GTEST_SKIP() << "python3-xlrd is not installed";
    EXPECT_EQ(*leido, "||Listado de clientes||||||\n"
                      "|Código|Nombre||Nombre fiscal||Id. Fiscal||Teléfono\n"
                      "|1|Peña €||SRL||30-1||$ 12,50\n");
}

TEST(OtroLector, ReadsTheFieldsOfTheText) {
    const auto leido = LeidoPor(
        R"(
import csv, sys
for fila in csv.reader(open(sys.argv[1], encoding='cp1252', newline='')):
    sys.stdout.buffer.write(('|'.join(fila) + '\n').encode())
)",
        ListaExportada({{u"1"_qs, u"Peña"_qs, u"a"_qs, u"b"_qs, u"$ 12,50"_qs}}).Texto("LVProveedores"));
    if (!leido)
        GTEST_SKIP() << "python3 is not installed";
    EXPECT_EQ(*leido, "1|Peña|a|b|$ 12|50\n") << "a comma in a value makes another field";
}

// --- the entry of the menu

const QString kNoEsPosible =
    u"No es posible continuar.\nAsegúrese de que el archivo no está abierto ni protegido contra "
    "escritura."_qs;

class MnuExportar : public testing::Test {
  protected:
    QString Ruta(const char *nombre) const { return carpeta.filePath(QString::fromUtf8(nombre)); }
    void Elige(const QString &ruta) {
        preguntas.EsperaRuta({.para = PedidoRuta::Para::Guardar,
                              .titulo = u"Exportar..."_qs,
                              .filtro = u"Hoja de Microsoft Excel|*.xls|Archivo de texto separado "
                                        "por comas|*.txt"_qs,
                              .carpeta = QString()},
                             ruta);
    }
    void Reemplazar(const QString &ruta, Respuesta respuesta) {
        preguntas.Espera(u"\"%1\" ya existe.\nDesea reemplazarlo?"_qs.arg(ruta), No, respuesta);
    }
    void Exportar() { mnuExportar(preguntas, bases, {&datos.lista, u"LVClientes"_qs}); }
    // An existing file that the operator lets be replaced, and can't be.
    void NoSePuede(const QString &ruta) {
        Elige(ruta);
        Reemplazar(ruta, Si);
        preguntas.EsperaFalla(kNoEsPosible);
        Exportar();
        EXPECT_EQ(Leer(ruta), "antes");
    }
    QStringList Archivos() const {
        return QDir(carpeta.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot);
    }

    QTemporaryDir carpeta;
    FrmBases bases{carpeta.filePath(u"Datos"_qs), Moneda()};
    PreguntasGuion preguntas;
    ListaExportada datos{3};
};

TEST_F(MnuExportar, TheEndingPicksTheFormat) {
    for (const char *nombre : {"a.xls", "b.txt", "c.XLS", "d.csv", "e"}) {
        Elige(Ruta(nombre));
        Exportar();
    }
    EXPECT_EQ(Leer(Ruta("a.xls")), datos.Hoja("LVClientes"));
    EXPECT_EQ(Leer(Ruta("b.txt")), datos.Texto("LVClientes"));
    EXPECT_EQ(Archivos(), QStringList({u"a.xls"_qs, u"b.txt"_qs}));
    Elige(QString()); // cancelled
    Exportar();
}

TEST_F(MnuExportar, AsksBeforeItReplaces) {
    const QString ruta = Ruta("lista.txt");
    Escribir(ruta, "antes");
    Elige(ruta);
    Reemplazar(ruta, No);
    Elige(Ruta("otra.txt"));
    Exportar();
    EXPECT_EQ(Leer(ruta), "antes");
    Elige(ruta);
    Reemplazar(ruta, Si);
    Exportar();
    EXPECT_EQ(Leer(ruta), datos.Texto("LVClientes"));
    EXPECT_EQ(Archivos().size(), 2) << "nothing is left of the trial";
    // What was let go is gone, also when the ending picks no format.
    const QString mayusculas = Ruta("LISTA.TXT");
    Escribir(mayusculas, "antes");
    Elige(mayusculas);
    Reemplazar(mayusculas, Si);
    Exportar();
    EXPECT_FALSE(QFile::exists(mayusculas));
}

TEST_F(MnuExportar, WhatCanNotBeReplacedStays) {
    const QString ruta = Ruta("lista.xls");
    Escribir(ruta, "antes");
    QFile::setPermissions(ruta, QFile::ReadOwner);
    NoSePuede(ruta);
    QFile::setPermissions(ruta, QFile::ReadOwner | QFile::WriteOwner);
    const int otro = ::open(QFile::encodeName(ruta).constData(), O_RDONLY);
    ASSERT_EQ(::flock(otro, LOCK_SH), 0);
    NoSePuede(ruta);
    ::close(otro);
    Escribir(ruta + u"vsw"_qs, "antes"); // a file of the operator's own
    NoSePuede(ruta);
    QDir(carpeta.path()).mkdir(u"Datos"_qs);
    for (const char *propio : {"Datos/ventas.mdb", "enlace.mdb"}) { // the second leads to the first
        if (!QFile::exists(Ruta("Datos/ventas.mdb")))
            Escribir(Ruta(propio), "antes");
        QFile::link(Ruta("Datos/ventas.mdb"), Ruta("enlace.mdb"));
        NoSePuede(Ruta(propio));
    }
    for (const QString &nada :
         {Ruta("no hay/lista.xls"), carpeta.path(), Ruta("x").repeated(300) + u".xls"_qs}) {
        Elige(nada);
        preguntas.EsperaFalla(kNoEsPosible);
        Exportar();
    }
}

TEST_F(MnuExportar, ADiskThatFailsIsToldAndLosesNothing) {
    const QString ruta = Ruta("lista.txt");
    Escribir(ruta, "antes");
    Elige(ruta);
    Reemplazar(ruta, Si);
    preguntas.EsperaFalla(u"No se pudo escribir \"lista.txt\": error de entrada o salida."_qs);
    {
        const DiscoLleno lleno(10);
        Exportar();
    }
    EXPECT_EQ(Leer(ruta), "antes");
    EXPECT_EQ(Archivos(), QStringList(u"lista.txt"_qs));
}

} // namespace
} // namespace tarvo
