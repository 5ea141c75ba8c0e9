// Surfaces and printers: where text comes to lie, and the files of the PDF printer.
#include "documents/impresorapdf.h"
#include "documents/listado.h"
#include "documents/superficiegrabada.h"
#include "documents/superficiepintada.h"
#include "documents/ticket.h"
#include "documents/ventanas/impresorassistema.h"

#include "testkit/archivos.h"
#include "testkit/dobles.h"
#include "testkit/impresorasprueba.h"

#include <QBuffer>
#include <QDir>
#include <QPaintEngine>
#include <QPdfWriter>
#include <QRegularExpression>
#include <QSettings>
#include <QTemporaryDir>

namespace tarvo {
namespace {

// Where each piece of text was painted, in dots.
struct Pintado {
    int pagina;
    QString texto;
    QPointF lugar;
    double ancho;
};

class MotorEspia final : public QPaintEngine {
  public:
    MotorEspia() : QPaintEngine(AllFeatures) {}
    bool begin(QPaintDevice *) override { return !roto; }
    bool end() override { return true; }
    void updateState(const QPaintEngineState &) override {}
    void drawPixmap(const QRectF &, const QPixmap &, const QRectF &) override {}
    Type type() const override { return User; }
    void drawTextItem(const QPointF &lugar, const QTextItem &item) override {
        pintados.push_back({pagina, item.text(), lugar, item.width()});
    }
    std::vector<Pintado> pintados;
    int pagina = 0;
    bool roto = false;
};

// A sheet that paints nothing and remembers everything.
class HojaEspia final : public QPdfWriter {
  public:
    explicit HojaEspia(MotorEspia &motor, double ancho = 210, double alto = 297)
        : QPdfWriter(&descarte_), motor_(motor) {
        setPageSize(QPageSize(QSizeF(ancho, alto), QPageSize::Millimeter, {}, QPageSize::ExactMatch));
        setPageMargins(QMarginsF(4, 4, 4, 4), QPageLayout::Millimeter);
    }
    bool newPage() override {
        ++motor_.pagina;
        return !motor_.roto;
    }

  protected:
    QPaintEngine *paintEngine() const override { return &motor_; }

  private:
    QBuffer descarte_;
    MotorEspia &motor_;
};

class Papel : public testing::Test {
  protected:
    std::unique_ptr<SuperficiePintada> Pintada(double ancho = 210, double alto = 297,
                                               Rejilla rejilla = {95, 10}) {
        auto hoja = std::make_unique<HojaEspia>(motor, ancho, alto);
        anchoHoja = hoja->width();
        altoHoja = hoja->height();
        return std::make_unique<SuperficiePintada>(std::move(hoja), rejilla);
    }
    double Derecha(std::size_t i) const {
        return motor.pintados.at(i).lugar.x() + motor.pintados.at(i).ancho;
    }

    MotorEspia motor;
    double anchoHoja = 0;
    double altoHoja = 0;
};

qsizetype PaginasPdf(const QByteArray &pdf) {
    return pdf.count("/Type /Page\n");
}

QSizeF HojaPdf(const QByteArray &pdf) {
    static const QRegularExpression caja(u"/MediaBox \\[0 0 ([0-9.]+) ([0-9.]+)\\]"_qs);
    const auto hallado = caja.match(QString::fromLatin1(pdf));
    return {hallado.captured(1).toDouble() * 25.4 / 72, hallado.captured(2).toDouble() * 25.4 / 72};
}

const QDateTime kMomento({2026, 11, 22}, {10, 42, 33});

QByteArray TicketPdf(const QString &carpeta, int lineas) {
    Comprobante venta;
    venta.lineas.assign(static_cast<std::size_t>(lineas), {});
    ImprimirTicket(*NuevoDocumentoPdf(carpeta, ClasePapel::Rollo, u"Ticket"_qs, kMomento), {}, venta);
    return Leer(carpeta + u"/ticket-20261122-104233-001.pdf"_qs);
}

TEST(Grabada, RepeatingGivesTheSamePaper) {
    SuperficieGrabada papel;
    ImprimirTicketPrueba(papel, {{{u"Uno"_qs, true}, {}, {u"Tres"_qs, false}}});
    papel.NuevaPagina();
    papel.Posicion(500, 5000);
    papel.Imagen(QImage(), 0, 0, 10, 10);
    PapelPrueba copia;
    papel.Repetir(copia);
    EXPECT_EQ(copia.Lineas().join(u'|'), u"|             Uno||            Tres|||\f|[imagen 10x10]"_qs);
    EXPECT_FALSE(copia.Terminado());
}

TEST(Cortar, KeepsSurrogatesTogether) {
    EXPECT_EQ(Cortar(u"abc"_qs, 2), u"ab");
    EXPECT_EQ(Cortar(u"abc"_qs, -1), QString());
    EXPECT_EQ(Cortar(u"a😀c"_qs, 2), u"a");
    EXPECT_EQ(Cortar(u"a😀c"_qs, 3), u"a😀");
}

// A column that the head has passed lies on the next line, a position is told in twips.
TEST_F(Papel, AmountsEndFlushWithTheRule) {
    const auto papel = Pintada(80, 200, {39, 8});
    papel->Tamano(8);
    papel->Linea(QString(39, u'-'));
    for (const bool negrita : {false, true}) {
        papel->Negrita(negrita);
        papel->Columna(39 - 8);
        papel->Linea(u"$ 124,50"_qs);
    }
    EXPECT_NEAR(Derecha(1), Derecha(0), 1);
    EXPECT_NEAR(Derecha(2), Derecha(0), 1);
    EXPECT_LT(motor.pintados[0].lugar.y(), motor.pintados[1].lugar.y());
    papel->Texto(QString(20, u'x'));
    papel->Columna(20);
    papel->Texto(u"a"_qs);
    papel->Columna(20);
    papel->Texto(u"b"_qs);
    EXPECT_EQ(motor.pintados[4].lugar.y(), motor.pintados[3].lugar.y());
    EXPECT_GT(motor.pintados[5].lugar.y(), motor.pintados[3].lugar.y());
    EXPECT_EQ(motor.pintados[5].lugar.x(), motor.pintados[4].lugar.x());
    papel->Posicion(720, 1440);
    papel->Texto(u"c"_qs);
    EXPECT_NEAR(motor.pintados[6].lugar.x(), 600, 1); // dots, 1200 to the inch
    EXPECT_NEAR(motor.pintados[6].lugar.y(), 1200 + 80, 80);
}

// Ninety-five columns at size 10 take the whole of an A4 sheet; narrower paper gets everything smaller.
TEST_F(Papel, NarrowPaperTakesAllColumns) {
    for (const double ancho : {210.0, 120.0}) {
        motor.pintados.clear();
        const auto papel = Pintada(ancho);
        papel->Linea(QString(95, u'-'));
        EXPECT_LE(Derecha(0), anchoHoja + 1) << ancho;
        EXPECT_GT(Derecha(0), anchoHoja * 0.98) << ancho;
    }
}

TEST_F(Papel, FullPageGoesOnOnTheNextOne) {
    const auto papel = Pintada(210, 100);
    for (int i = 0; i < 50; ++i)
        papel->Linea(QString::number(i));
    ASSERT_EQ(motor.pintados.size(), 50u);
    EXPECT_EQ(papel->Paginas(), 3);
    EXPECT_EQ(motor.pintados.back().pagina, 2);
    for (const Pintado &pintado : motor.pintados)
        EXPECT_LE(pintado.lugar.y(), altoHoja) << pintado.texto.toStdString();
}

TEST_F(Papel, PrinterThatRefusesIsAnError) {
    auto papel = Pintada();
    motor.roto = true;
    EXPECT_EQ(NumeroDe([&] { papel->NuevaPagina(); }), errores::kImpresora);
    papel.reset();
    EXPECT_EQ(NumeroDe([&] { Pintada(); }), errores::kImpresora);
}

TEST(Pdf, SlipIsOnePageAsLongAsItsTextUnlessItIsEndless) {
    QTemporaryDir uno, dos;
    const QByteArray corto = TicketPdf(uno.path(), 1);
    const QByteArray largo = TicketPdf(dos.path(), 101);
    EXPECT_EQ(PaginasPdf(corto), 1);
    EXPECT_EQ(PaginasPdf(largo), 1);
    EXPECT_NEAR(HojaPdf(corto).width(), 80, 0.2);
    EXPECT_GT(HojaPdf(corto).height(), 80);
    EXPECT_LT(HojaPdf(corto).height(), 120);
    // Two lines of 8 points for each article.
    const double porArticulo = (HojaPdf(largo).height() - HojaPdf(corto).height()) / 100;
    EXPECT_NEAR(porArticulo, 2 * 8 * 1.15 * 25.4 / 72, 0.4);
    QTemporaryDir tres;
    const QByteArray sinFin = TicketPdf(tres.path(), 900);
    EXPECT_EQ(PaginasPdf(sinFin), 2);
    EXPECT_NEAR(HojaPdf(sinFin).height(), 5000, 1);
}

// Head, 51 rows and foot go on one sheet, so paper has the pages that the listing says.
TEST(Pdf, ListingHasThePagesThatItSays) {
    const std::pair<int, int> casos[] = {{0, 1}, {50, 1}, {51, 2}, {101, 2}};
    for (const auto &[filas, paginas] : casos) {
        QTemporaryDir carpeta;
        Listado listado{.titulo = u"LISTADO DE CLIENTES"_qs,
                        .subrayado = u"-------------------"_qs,
                        .encabezado = u"Código"_qs};
        listado.imprimirFila = [](Superficie &papel, int fila) { papel.Texto(QString::number(fila)); };
        listado.pie = [](int contadas) { return QString::number(contadas); };
        listado.trasTitulo = [](Superficie &papel) { papel.Linea(u"Cliente: Ana\n"_qs); };
        ImprimirListado(*NuevoDocumentoPdf(carpeta.path(), ClasePapel::Hoja, listado.titulo, kMomento),
                        listado, filas);
        const QByteArray pdf = Leer(carpeta.filePath(u"listado-de-clientes-20261122-104233-001.pdf"_qs));
        EXPECT_EQ(PaginasPdf(pdf), paginas) << filas;
        EXPECT_NEAR(HojaPdf(pdf).width(), 210, 0.5);
        EXPECT_NEAR(HojaPdf(pdf).height(), 297, 0.5);
    }
}

TEST(Pdf, NeverOverwritesAndMakesItsFolder) {
    QTemporaryDir carpeta;
    const QString impresos = carpeta.filePath(u"a/Impresos"_qs);
    RelojFijo reloj(kMomento);
    ImpresorasSistema impresoras(reloj, impresos);
    EXPECT_EQ(impresoras.Nombres().last(), u"PDF");
    impresoras.HacerActual(u"PDF"_qs);
    impresoras.HacerActual(u"No existe"_qs);
    EXPECT_EQ(impresoras.Actual(), u"PDF");
    for (const auto *titulo : {"Ticket", "Ticket", "Devolución Contado"})
        ImprimirTicketPrueba(*impresoras.NuevoDocumento(ClasePapel::Rollo, QString::fromUtf8(titulo)), {});
    EXPECT_EQ(QDir(impresos).entryList(QDir::Files, QDir::Name),
              (QStringList{u"devolucion-contado-20261122-104233-001.pdf"_qs,
                           u"ticket-20261122-104233-001.pdf"_qs, u"ticket-20261122-104233-002.pdf"_qs}));
}

TEST(Pdf, WhatCannotBeWrittenLeavesNoFile) {
    QTemporaryDir carpeta;
    for (const ClasePapel clase : {ClasePapel::Rollo, ClasePapel::Hoja}) {
        const auto papel = NuevoDocumentoPdf(carpeta.path(), clase, u"lleno"_qs, kMomento);
        papel->Linea(u"texto"_qs);
        const DiscoLleno lleno(1000);
        EXPECT_EQ(NumeroDe([&] { papel->Terminar(); }), errores::kEscritura);
    }
    NuevoDocumentoPdf(carpeta.path(), ClasePapel::Hoja, u"abandonado"_qs, kMomento).reset();
    EXPECT_TRUE(QDir(carpeta.path()).isEmpty());

    const QString obstaculo = carpeta.filePath(u"archivo"_qs);
    Escribir(obstaculo, {});
    EXPECT_EQ(NumeroDe([&] { NuevoDocumentoPdf(obstaculo, ClasePapel::Rollo, u"x"_qs, kMomento); }),
              errores::kEscritura);
}

TEST(Impresoras, ChosenByPurpose) {
    QTemporaryDir carpeta;
    QSettings ajustes(carpeta.filePath(u"ajustes.ini"_qs), QSettings::IniFormat);
    const std::tuple<Proposito, const char *, const char *, const char *> casos[] = {
        {Proposito::Ticket, "ImpTick", "", "Láser"},
        {Proposito::Listado, "ImpList", "", "Láser"},
        {Proposito::Ticket, "ImpTick", "Tickets", "Tickets"},
        {Proposito::Listado, "ImpList", "PDF", "PDF"},
        {Proposito::Ticket, "ImpTick", "Vendida", "Láser"},
        {Proposito::Listado, "ImpList", "tickets", "Láser"}};
    for (const auto &[proposito, clave, guardada, utf8] : casos) {
        ajustes.setValue(clave, QString::fromUtf8(guardada));
        ImpresorasPrueba impresoras;
        const QString esperada = QString::fromUtf8(utf8);
        EXPECT_EQ(ElegirImpresora(impresoras, ajustes, proposito), esperada);
        EXPECT_EQ(impresoras.actual, esperada);
    }
}

TEST(Impresoras, FailuresOfTheChoiceAreSwallowed) {
    struct Rotas final : Impresoras {
        QStringList Nombres() const override { throw ErrorDatos(errores::kImpresora, u"Sin cola."_qs); }
        QString Actual() const override { return {}; }
        void HacerActual(const QString &) override {}
        std::unique_ptr<Superficie> NuevoDocumento(ClasePapel, const QString &) override { return {}; }
    } rotas;
    QTemporaryDir carpeta;
    const QSettings ajustes(carpeta.filePath(u"ajustes.ini"_qs), QSettings::IniFormat);
    EXPECT_EQ(ElegirImpresora(rotas, ajustes, Proposito::Ticket), QString());
}

} // namespace
} // namespace tarvo
