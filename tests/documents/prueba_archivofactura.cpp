// The file of an invoice layout, byte for byte and damaged in every way.
#include "documents/archivofactura.h"
#include "documents/archivos.h"
#include "documents/factura.h"

#include "store/errordatos.h"
#include "testkit/preguntasguion.h"

#include <QBuffer>
#include <QDir>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <cmath>
#include <random>

using namespace tarvo;

namespace {

const QDateTime kMomento({2006, 5, 3}, {14, 7, 9});

DisenoFactura ConEtiqueta() {
    DisenoFactura diseno;
    EtiquetaLibre &etiqueta = diseno.etiquetas[0];
    etiqueta.visible = true;
    etiqueta.ancho = 3000;
    etiqueta.texto = QStringLiteral("Gracias por su compra");
    etiqueta.alineacion = 2;
    etiqueta.negrita = true;
    return diseno;
}

QByteArray Bytes(const DisenoFactura &diseno, const QString &logo = {}) {
    QBuffer salida;
    salida.open(QIODevice::WriteOnly);
    EscribirDiseno(salida, diseno, logo, kMomento);
    return salida.data();
}

// The failure of reading `bytes`, 0 when there is none.
int Leer(QByteArray bytes, DisenoFactura &diseno, QString *logo = nullptr) {
    QBuffer entrada(&bytes);
    entrada.open(QIODevice::ReadOnly);
    try {
        const QString ruta = LeerDiseno(entrada, diseno);
        if (logo != nullptr)
            *logo = ruta;
        return 0;
    } catch (const ErrorDatos &error) {
        return error.Numero();
    }
}

// The default file with token `lugar`, counted from 1, replaced.
QByteArray ConFicha(int lugar, const QByteArray &ficha) {
    QByteArrayList fichas = Bytes(DisenoFactura()).split(',');
    fichas[lugar - 1] = ficha;
    return fichas.join(',');
}

template <typename Accion> int NumeroDe(const Accion &accion) {
    try {
        accion();
    } catch (const ErrorDatos &error) {
        return error.Numero();
    }
    return 0;
}

void Escribir(const QString &ruta, const QByteArray &datos) {
    QFile archivo(ruta);
    ASSERT_TRUE(archivo.open(QIODevice::WriteOnly));
    archivo.write(datos);
}

} // namespace

TEST(ArchivoFactura, IsTheLineThatTheShopsKnow) {
    QByteArray esperado =
        " Velbrina Software,03/05/2006,14:07:09,Tarvo 2.9,"
        "1,3840,360,1,3840,720,1,3840,1080,1,5640,1080,1,8520,240,1,8520,600,1,9000,960,1,9000,1320,"
        "1,240,1800,1,1500,1800,1,6120,1800,1,7560,1800,1,9015,1800,1,240,5700,1,5880,5700,"
        "1,8760,4560,1,8760,4845,1,8760,5130,1,8760,5415,1,8760,5700,"
        "1,240,240,"
        "1,240,2400,3000,Gracias por su compra,2,1,0,0,0,";
    for (int i = 1; i < 30; ++i)
        esperado += QStringLiteral("0,%1,%2,1125,Pers,0,0,0,0,0,")
                        .arg(240 + 240 * (i / 10))
                        .arg(2400 + 240 * (i % 10))
                        .toLatin1();
    EXPECT_EQ(Bytes(ConEtiqueta(), QStringLiteral("/a/ñ€中.png")), esperado + "/a/\xF1\x80?.png,\r\n");
    EXPECT_EQ(esperado.count(',') + 1, 368);
}

TEST(ArchivoFactura, ReadBackItIsTheSameLayout) {
    DisenoFactura diseno = ConEtiqueta();
    diseno.campos[3] = {false, 0.5F, -0.0F};
    diseno.logo = {false, 123456.789F, -1e9F};
    diseno.etiquetas[29] = {
        {true, 10430, 6260}, 9000, QStringLiteral("Ñandú €5"), 1, false, true, true, true};
    DisenoFactura leido;
    QString logo;
    EXPECT_EQ(Leer(Bytes(diseno, QStringLiteral("/x/logo.bmp")), leido, &logo), 0);
    EXPECT_EQ(leido, diseno);
    EXPECT_EQ(logo, QStringLiteral("/x/logo.bmp"));
    EXPECT_FALSE(Bytes(diseno).contains("e+"));
    EXPECT_FALSE(Bytes(diseno).contains(",-0,"));
}

// What a file may hold that is no layout as this program writes it.
TEST(ArchivoFactura, WhatIsOddIsReadAllTheSame) {
    const QByteArray bueno = Bytes(ConEtiqueta());
    const QByteArray sinFin = bueno.chopped(2);
    for (const QByteArray &bytes :
         {bueno + "y una segunda línea,,\r\n", sinFin, sinFin + "\r" + "1,2,3,", sinFin + '\n', bueno.mid(1),
          "\xEF\xBB\xBF" + bueno, sinFin + "1,2,3," + QByteArray(99, 'x'),
          QByteArray(bueno).replace("Tarvo 2.9", QByteArray("Otro\0 3.0", 9))}) {
        DisenoFactura leido;
        EXPECT_EQ(Leer(bytes, leido), 0);
        EXPECT_EQ(leido, ConEtiqueta());
    }
    const struct {
        int lugar;
        const char *ficha;
        float left;
        bool visible;
    } casos[] = {{6, " 12.5 ", 12.5F, true}, {6, "-0", 0, true},        {6, "1e3", 1000, true},
                 {5, "True", 3840, true},    {5, "false", 3840, false}, {5, "-1", 3840, true}};
    for (const auto &caso : casos) {
        DisenoFactura leido;
        EXPECT_EQ(Leer(ConFicha(caso.lugar, caso.ficha), leido), 0) << caso.ficha;
        EXPECT_EQ(leido.campos[0].left, caso.left) << caso.ficha;
        EXPECT_EQ(leido.campos[0].visible, caso.visible) << caso.ficha;
    }
    DisenoFactura leido;
    EXPECT_EQ(Leer(ConFicha(73, "7"), leido), 0); // an alignment that is none is written as no token
    EXPECT_EQ(leido.etiquetas[0].alineacion, 7);
    EXPECT_EQ(Bytes(leido).count(','), Bytes(DisenoFactura()).count(',') - 1);
}

// The fields before the failure have their new values, the others their old ones.
TEST(ArchivoFactura, AFailureKeepsWhatWasReadBefore) {
    DisenoFactura movido;
    for (Pieza &campo : movido.campos)
        campo = {false, 1, 2};
    const QByteArrayList fichas = Bytes(movido).split(',');
    for (const int cuantas : {0, 3, 4, 6, 7, 64, 66, 367}) {
        DisenoFactura leido;
        EXPECT_EQ(Leer(fichas.first(cuantas).join(',') + ',', leido), errores::kFormato) << cuantas;
        const bool primero = cuantas >= 7;
        EXPECT_EQ(leido.campos[0].left, cuantas >= 6 ? 1 : 3840) << cuantas;
        EXPECT_EQ(leido.campos[0].visible, !primero) << cuantas;
        EXPECT_EQ(leido.campos[19].left, cuantas >= 64 ? 1 : 8760) << cuantas;
    }
    for (const char *ficha : {"", "x", "nan", "inf", "1e400", "1e39", "0x10", "12;5", "--1"}) {
        DisenoFactura leido;
        EXPECT_EQ(Leer(ConFicha(9, ficha), leido), errores::kFormato) << ficha;
    }
    DisenoFactura leido;
    EXPECT_EQ(Leer(ConFicha(73, "40000"), leido), errores::kFormato);
    EXPECT_EQ(Leer(ConFicha(72, "uno,dos"), leido), errores::kFormato); // "dos" is no alignment
    EXPECT_EQ(leido.etiquetas[0].texto, QStringLiteral("uno"));
    EXPECT_EQ(Leer(QByteArray(100'000'000, 'x'), leido), errores::kFormato);
    EXPECT_EQ(Leer({}, leido), errores::kFormato);
}

TEST(ArchivoFactura, SavesWholeOrNotAtAll) {
    QTemporaryDir carpeta;
    const QString ruta = carpeta.filePath(QStringLiteral("a.kzd"));
    GuardarDiseno(ruta, ConEtiqueta(), {}, kMomento);
    EXPECT_EQ(
        NumeroDe([&] { GuardarDiseno(carpeta.filePath(QStringLiteral("no/a.kzd")), {}, {}, kMomento); }),
        errores::kRutaNoEncontrada);
    EXPECT_EQ(NumeroDe([&] { GuardarDiseno(carpeta.path(), {}, {}, kMomento); }), errores::kAccesoRuta);
    QFile lleno(QStringLiteral("/dev/full"));
    ASSERT_TRUE(lleno.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
    EXPECT_EQ(NumeroDe([&] { EscribirDiseno(lleno, {}, {}, kMomento); }), errores::kEscritura);
    EXPECT_EQ(QDir(carpeta.path()).entryList(QDir::Files), QStringList{QStringLiteral("a.kzd")});
    DisenoFactura leido;
    EXPECT_TRUE(CargarDiseno(ruta, leido).isEmpty());
    EXPECT_EQ(leido, ConEtiqueta());
}

// Which failure the operator is told, by the number of the error.
TEST(ArchivoFactura, EachFailureHasItsMessage) {
    QTemporaryDir carpeta;
    const QString texto = carpeta.filePath(QStringLiteral("logo.png"));
    Escribir(texto, "no es una imagen");
    const QString enorme = carpeta.filePath(QStringLiteral("enorme.bmp"));
    QByteArray cabecera =
        QByteArray::fromHex("424d000000000000000036000000280000002 04e0000204e00000100200000000000");
    Escribir(enorme, cabecera + QByteArray(200, '\0'));
    const struct {
        QString logo;
        QString mensaje;
        Icono icono;
    } casos[] = {
        {texto, QStringLiteral("La imagen no es válida."), Icono::Critico},
        {enorme, QStringLiteral("La imagen no es válida."), Icono::Critico},
        {carpeta.filePath(QStringLiteral("no/logo.png")),
         QStringLiteral("No se ha encontrado la ruta de acceso."), Icono::Critico},
        {carpeta.filePath(QStringLiteral("no.png")), QStringLiteral("No se reconoce el formato del archivo."),
         Icono::Informacion},
        {carpeta.path(), QStringLiteral("No se reconoce el formato del archivo."), Icono::Informacion},
    };
    const QString ruta = carpeta.filePath(QStringLiteral("a.kzd"));
    for (const auto &caso : casos) {
        GuardarDiseno(ruta, ConEtiqueta(), caso.logo, kMomento);
        PreguntasGuion preguntas;
        preguntas.EsperaMensaje(caso.mensaje, caso.icono);
        FormularioFactura formulario;
        try {
            CargarFormulario(ruta, formulario);
        } catch (const ErrorDatos &error) {
            AvisarLectura(preguntas, error);
        }
        EXPECT_EQ(formulario.diseno, ConEtiqueta());
    }
    GuardarDiseno(ruta, ConEtiqueta(), {}, kMomento);
    FormularioFactura formulario;
    CargarFormulario(ruta, formulario);
    EXPECT_EQ(formulario.logo.size(), QSize(160, 90));
}

// Files that nobody wrote: bytes changed, cut out, doubled, in a sound file or one of two sound files joined.
TEST(ArchivoFactura, MutatedFilesNeverHarm) {
#ifdef __SANITIZE_ADDRESS__
    constexpr int kArchivos = 100'000;
#else
    constexpr int kArchivos = 5'000;
#endif
    const QByteArray semilla = Bytes(ConEtiqueta(), QStringLiteral("/x/logo.png"));
    const char interesantes[] = ",,,.-+e019\0\r\n\x1a\x80\xff \t";
    std::mt19937 azar(20061);
    const auto hasta = [&azar](qsizetype tope) {
        return static_cast<qsizetype>(azar() % static_cast<std::uint32_t>(std::max<qsizetype>(tope, 1)));
    };
    int buenos = 0;
    for (int i = 0; i < kArchivos; ++i) {
        QByteArray bytes = semilla;
        for (qsizetype golpes = 1 + hasta(4); golpes > 0; --golpes) {
            const qsizetype lugar = hasta(bytes.size());
            switch (azar() % 4) {
            case 0:
                bytes.truncate(lugar);
                break;
            case 1:
                bytes.remove(lugar, 1 + hasta(12));
                break;
            case 2:
                bytes.insert(lugar, bytes.mid(hasta(bytes.size()), hasta(40)));
                break;
            default:
                if (!bytes.isEmpty())
                    bytes[lugar] = interesantes[hasta(sizeof interesantes - 1)];
            }
        }
        DisenoFactura diseno;
        buenos += Leer(bytes, diseno) == 0 ? 1 : 0;
        for (const EtiquetaLibre &etiqueta : diseno.etiquetas)
            ASSERT_TRUE(std::isfinite(etiqueta.left) && std::isfinite(etiqueta.top) &&
                        std::isfinite(etiqueta.ancho));
    }
    EXPECT_GT(buenos, 0);
    EXPECT_LT(buenos, kArchivos);
}
