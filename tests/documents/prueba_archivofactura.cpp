// The file of an invoice layout, byte for byte and damaged in every way.
#include "documents/archivofactura.h"
#include "documents/archivos.h"
#include "documents/factura.h"

#include "testkit/archivos.h"
#include "testkit/preguntasguion.h"

#include <QBuffer>
#include <QDir>
#include <QTemporaryDir>

#include <cmath>

namespace tarvo {
namespace {

const QDateTime kMomento({2006, 5, 3}, {14, 7, 9});

DisenoFactura ConEtiqueta() {
    DisenoFactura diseno;
    EtiquetaLibre &etiqueta = diseno.etiquetas[0];
    etiqueta.visible = true;
    etiqueta.ancho = 3000;
    etiqueta.texto = u"Gracias por su compra"_qs;
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
    return NumeroDe([&] {
        const QString ruta = LeerDiseno(entrada, diseno);
        if (logo != nullptr)
            *logo = ruta;
    });
}

// The default file with token `lugar`, counted from 1, replaced.
QByteArray ConFicha(int lugar, const QByteArray &ficha) {
    QByteArrayList fichas = Bytes(DisenoFactura()).split(',');
    fichas[lugar - 1] = ficha;
    return fichas.join(',');
}

TEST(ArchivoFactura, IsTheLineThatTheShopsKnow) {
    QByteArray esperado =
        " Velbrina Software,03/05/2006,14:07:09,Tarvo 2.9,"
        "1,3840,360,1,3840,720,1,3840,1080,1,5640,1080,1,8520,240,1,8520,600,1,9000,960,1,9000,1320,"
        "1,240,1800,1,1500,1800,1,6120,1800,1,7560,1800,1,9015,1800,1,240,5700,1,5880,5700,"
        "1,8760,4560,1,8760,4845,1,8760,5130,1,8760,5415,1,8760,5700,"
        "1,240,240,"
        "1,240,2400,3000,Gracias por su compra,2,1,0,0,0,";
    for (int i = 1; i < 30; ++i)
        esperado += u"0,%1,%2,1125,Pers,0,0,0,0,0,"_qs.arg(240 + 240 * (i / 10))
                        .arg(2400 + 240 * (i % 10))
                        .toLatin1();
    EXPECT_EQ(Bytes(ConEtiqueta(), u"/a/ñ€中.png"_qs), esperado + "/a/\xF1\x80?.png,\r\n");
    EXPECT_EQ(esperado.count(',') + 1, 368);
}

TEST(ArchivoFactura, ReadBackItIsTheSameLayout) {
    DisenoFactura diseno = ConEtiqueta();
    diseno.campos[3] = {false, 0.5F, -0.0F};
    diseno.logo = {false, 123456.789F, -1e9F};
    diseno.etiquetas[29] = {{true, 10430, 6260}, 9000, u"Ñandú €5"_qs, 1, false, true, true, true};
    DisenoFactura leido;
    QString logo;
    EXPECT_EQ(Leer(Bytes(diseno, u"/x/logo.bmp"_qs), leido, &logo), 0);
    EXPECT_EQ(leido, diseno);
    EXPECT_EQ(logo, u"/x/logo.bmp");
    EXPECT_FALSE(Bytes(diseno).contains("e+") || Bytes(diseno).contains(",-0,"));
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
    const std::tuple<int, const char *, float, bool> casos[] = {
        {6, " 12.5 ", 12.5F, true}, {6, "-0", 0, true},        {6, "1e3", 1000, true},
        {5, "True", 3840, true},    {5, "false", 3840, false}, {5, "-1", 3840, true}};
    for (const auto &[lugar, ficha, left, visible] : casos) {
        DisenoFactura leido;
        EXPECT_EQ(Leer(ConFicha(lugar, ficha), leido), 0) << ficha;
        EXPECT_EQ(leido.campos[0].left, left) << ficha;
        EXPECT_EQ(leido.campos[0].visible, visible) << ficha;
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
    EXPECT_EQ(leido.etiquetas[0].texto, u"uno");
    EXPECT_EQ(Leer(QByteArray(100'000'000, 'x'), leido), errores::kFormato);
    EXPECT_EQ(Leer({}, leido), errores::kFormato);
}

TEST(ArchivoFactura, SavesWholeOrNotAtAll) {
    QTemporaryDir carpeta;
    const QString ruta = carpeta.filePath(u"a.kzd"_qs);
    GuardarDiseno(ruta, ConEtiqueta(), {}, kMomento);
    EXPECT_EQ(NumeroDe([&] { GuardarDiseno(carpeta.filePath(u"no/a.kzd"_qs), {}, {}, kMomento); }),
              errores::kRutaNoEncontrada);
    EXPECT_EQ(NumeroDe([&] { GuardarDiseno(carpeta.path(), {}, {}, kMomento); }), errores::kAccesoRuta);
    QFile lleno(u"/dev/full"_qs);
    ASSERT_TRUE(lleno.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
    EXPECT_EQ(NumeroDe([&] { EscribirDiseno(lleno, {}, {}, kMomento); }), errores::kEscritura);
    {
        const DiscoLleno sinLugar(1000);
        EXPECT_EQ(NumeroDe([&] { GuardarDiseno(ruta, {}, {}, kMomento); }), errores::kEscritura);
    }
    EXPECT_EQ(QDir(carpeta.path()).entryList(QDir::Files), QStringList{u"a.kzd"_qs});
    DisenoFactura leido;
    EXPECT_TRUE(CargarDiseno(ruta, leido).isEmpty());
    EXPECT_EQ(leido, ConEtiqueta());
}

// Which failure the operator is told, by the number of the error.
TEST(ArchivoFactura, EachFailureHasItsMessage) {
    QTemporaryDir carpeta;
    const QString texto = carpeta.filePath(u"logo.png"_qs);
    Escribir(texto, "no es una imagen");
    const QString enorme = carpeta.filePath(u"enorme.bmp"_qs);
    QByteArray cabecera =
        QByteArray::fromHex("424d000000000000000036000000280000002 04e0000204e00000100200000000000");
    Escribir(enorme, cabecera + QByteArray(200, '\0'));
    const std::tuple<QString, QString, Icono> casos[] = {
        {texto, u"La imagen no es válida."_qs, Icono::Critico},
        {enorme, u"La imagen no es válida."_qs, Icono::Critico},
        {carpeta.filePath(u"no/logo.png"_qs), u"No se ha encontrado la ruta de acceso."_qs, Icono::Critico},
        {carpeta.filePath(u"no.png"_qs), u"No se reconoce el formato del archivo."_qs, Icono::Informacion},
        {carpeta.path(), u"No se reconoce el formato del archivo."_qs, Icono::Informacion}};
    const QString ruta = carpeta.filePath(u"a.kzd"_qs);
    for (const auto &[logo, mensaje, icono] : casos) {
        GuardarDiseno(ruta, ConEtiqueta(), logo, kMomento);
        PreguntasGuion preguntas;
        preguntas.EsperaMensaje(mensaje, icono);
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
    const QByteArray semilla = Bytes(ConEtiqueta(), u"/x/logo.png"_qs);
    std::mt19937 azar(20061);
    int buenos = 0;
    for (int i = 0; i < kEstropeados; ++i) {
        DisenoFactura diseno;
        buenos += Leer(Estropeado(semilla, azar), diseno) == 0 ? 1 : 0;
        for (const EtiquetaLibre &etiqueta : diseno.etiquetas)
            ASSERT_TRUE(std::isfinite(etiqueta.left) && std::isfinite(etiqueta.top) &&
                        std::isfinite(etiqueta.ancho));
    }
    EXPECT_GT(buenos, 0);
    EXPECT_LT(buenos, kEstropeados);
}

} // namespace
} // namespace tarvo
