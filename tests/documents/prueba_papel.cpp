// Surfaces and printers: where text comes to lie, and the files of the PDF printer.
#include "documents/impresorapdf.h"
#include "documents/listado.h"
#include "documents/superficiegrabada.h"
#include "documents/superficiepintada.h"
#include "documents/ticket.h"
#include "documents/ventanas/impresorassistema.h"

#include "testkit/impresorasprueba.h"
#include "testkit/relojfijo.h"

#include <QBuffer>
#include <QDir>
#include <QPaintEngine>
#include <QPdfWriter>
#include <QRegularExpression>
#include <QSettings>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <csignal>
#include <sys/resource.h>

using namespace tarvo;

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

QByteArray Leer(const QString &ruta) {
    QFile archivo(ruta);
    EXPECT_TRUE(archivo.open(QIODevice::ReadOnly)) << ruta.toStdString();
    return archivo.readAll();
}

qsizetype PaginasPdf(const QByteArray &pdf) {
    return pdf.count("/Type /Page\n");
}

QSizeF HojaPdf(const QByteArray &pdf) {
    static const QRegularExpression caja(QStringLiteral("/MediaBox \\[0 0 ([0-9.]+) ([0-9.]+)\\]"));
    const auto hallado = caja.match(QString::fromLatin1(pdf));
    return {hallado.captured(1).toDouble() * 25.4 / 72, hallado.captured(2).toDouble() * 25.4 / 72};
}

const QDateTime kMomento({2026, 11, 22}, {10, 42, 33});

QByteArray TicketPdf(const QString &carpeta, int lineas) {
    Comprobante venta;
    venta.lineas.assign(static_cast<std::size_t>(lineas), {});
    ImprimirTicket(*NuevoDocumentoPdf(carpeta, ClasePapel::Rollo, QStringLiteral("Ticket"), kMomento), {},
                   venta);
    return Leer(carpeta + QStringLiteral("/ticket-20261122-104233-001.pdf"));
}

// Files can't grow beyond `bytes` while it lives: a full disk.
class DiscoLleno {
  public:
    explicit DiscoLleno(rlim_t bytes) : anterior_(std::signal(SIGXFSZ, SIG_IGN)) {
        getrlimit(RLIMIT_FSIZE, &limite_);
        const rlimit corto{bytes, limite_.rlim_max};
        setrlimit(RLIMIT_FSIZE, &corto);
    }
    ~DiscoLleno() {
        setrlimit(RLIMIT_FSIZE, &limite_);
        std::signal(SIGXFSZ, anterior_);
    }

  private:
    rlimit limite_{};
    void (*anterior_)(int);
};

int NumeroDeError(const std::function<void()> &accion) {
    try {
        accion();
    } catch (const ErrorDatos &error) {
        return error.Numero();
    }
    return 0;
}

} // namespace

TEST(PapelPrueba, HeadMovesAsOnPaper) {
    PapelPrueba papel;
    papel.Columna(-3);
    papel.Texto(QStringLiteral("abc"));
    papel.Columna(3); // right behind the head: same line
    papel.Texto(QStringLiteral("d\te\n"));
    papel.Columna(7);
    papel.Texto(QStringLiteral("f"));
    papel.Columna(6); // passed: next line
    papel.Linea(QStringLiteral("g"));
    papel.Posicion(1200, 1200);
    papel.Texto(QStringLiteral("h"));
    papel.NuevaPagina();
    papel.Imagen(QImage(), 0, 240, 2400, 1350);
    EXPECT_EQ(papel.Lineas().join(u'|'),
              QStringLiteral("abcd e f|      g||||          h|\f||[imagen 2400x1350]"));
}

TEST(Grabada, RepeatingGivesTheSamePaper) {
    SuperficieGrabada papel;
    ImprimirTicketPrueba(papel, {{{QStringLiteral("Uno"), true}, {}, {QStringLiteral("Tres"), false}}});
    papel.NuevaPagina();
    papel.Posicion(500, 5000);
    papel.Imagen(QImage(), 0, 0, 10, 10);
    PapelPrueba copia;
    papel.Repetir(copia);
    EXPECT_EQ(copia.Lineas().join(u'|'),
              QStringLiteral("|             Uno||            Tres|||\f|[imagen 10x10]"));
    EXPECT_FALSE(copia.Terminado());
}

TEST(Cortar, KeepsSurrogatesTogether) {
    EXPECT_EQ(Cortar(QStringLiteral("abc"), 2), QStringLiteral("ab"));
    EXPECT_EQ(Cortar(QStringLiteral("abc"), -1), QString());
    EXPECT_EQ(Cortar(QStringLiteral("a😀c"), 2), QStringLiteral("a"));
    EXPECT_EQ(Cortar(QStringLiteral("a😀c"), 3), QStringLiteral("a😀"));
}

// A column that the head has passed lies on the next line, a position is told in twips.
TEST_F(Papel, AmountsEndFlushWithTheRule) {
    const auto papel = Pintada(80, 200, {39, 8});
    papel->Tamano(8);
    papel->Linea(QString(39, u'-'));
    for (const bool negrita : {false, true}) {
        papel->Negrita(negrita);
        papel->Columna(39 - 8);
        papel->Linea(QStringLiteral("$ 124,50"));
    }
    EXPECT_NEAR(Derecha(1), Derecha(0), 1);
    EXPECT_NEAR(Derecha(2), Derecha(0), 1);
    EXPECT_LT(motor.pintados[0].lugar.y(), motor.pintados[1].lugar.y());
    papel->Texto(QString(20, u'x'));
    papel->Columna(20);
    papel->Texto(QStringLiteral("a"));
    papel->Columna(20);
    papel->Texto(QStringLiteral("b"));
    EXPECT_EQ(motor.pintados[4].lugar.y(), motor.pintados[3].lugar.y());
    EXPECT_GT(motor.pintados[5].lugar.y(), motor.pintados[3].lugar.y());
    EXPECT_EQ(motor.pintados[5].lugar.x(), motor.pintados[4].lugar.x());
    papel->Posicion(720, 1440);
    papel->Texto(QStringLiteral("c"));
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
    EXPECT_EQ(NumeroDeError([&] { papel->NuevaPagina(); }), errores::kImpresora);
    papel.reset();
    EXPECT_EQ(NumeroDeError([&] { Pintada(); }), errores::kImpresora);
}

TEST(Pdf, SlipIsOnePageAsLongAsItsText) {
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
}

TEST(Pdf, EndlessSlipTakesMorePages) {
    QTemporaryDir carpeta;
    const QByteArray pdf = TicketPdf(carpeta.path(), 900);
    EXPECT_EQ(PaginasPdf(pdf), 2);
    EXPECT_NEAR(HojaPdf(pdf).height(), 5000, 1);
}

// Head, 51 rows and foot go on one sheet, so paper has the pages that the listing says.
TEST(Pdf, ListingHasThePagesThatItSays) {
    const std::pair<int, int> casos[] = {{0, 1}, {50, 1}, {51, 2}, {101, 2}};
    for (const auto &[filas, paginas] : casos) {
        QTemporaryDir carpeta;
        Listado listado{.titulo = QStringLiteral("LISTADO DE CLIENTES"),
                        .subrayado = QStringLiteral("-------------------"),
                        .encabezado = QStringLiteral("Código")};
        listado.imprimirFila = [](Superficie &papel, int fila) { papel.Texto(QString::number(fila)); };
        listado.pie = [](int contadas) { return QString::number(contadas); };
        listado.trasTitulo = [](Superficie &papel) { papel.Linea(QStringLiteral("Cliente: Ana\n")); };
        ImprimirListado(*NuevoDocumentoPdf(carpeta.path(), ClasePapel::Hoja, listado.titulo, kMomento),
                        listado, filas);
        const QByteArray pdf =
            Leer(carpeta.filePath(QStringLiteral("listado-de-clientes-20261122-104233-001.pdf")));
        EXPECT_EQ(PaginasPdf(pdf), paginas) << filas;
        EXPECT_NEAR(HojaPdf(pdf).width(), 210, 0.5);
        EXPECT_NEAR(HojaPdf(pdf).height(), 297, 0.5);
    }
}

TEST(Pdf, NeverOverwritesAndMakesItsFolder) {
    QTemporaryDir carpeta;
    const QString impresos = carpeta.filePath(QStringLiteral("a/Impresos"));
    RelojFijo reloj(kMomento);
    ImpresorasSistema impresoras(reloj, impresos);
    EXPECT_EQ(impresoras.Nombres().last(), QStringLiteral("PDF"));
    impresoras.HacerActual(QStringLiteral("PDF"));
    impresoras.HacerActual(QStringLiteral("No existe"));
    EXPECT_EQ(impresoras.Actual(), QStringLiteral("PDF"));
    for (const auto *titulo : {"Ticket", "Ticket", "Devolución Contado"})
        ImprimirTicketPrueba(*impresoras.NuevoDocumento(ClasePapel::Rollo, QString::fromUtf8(titulo)), {});
    EXPECT_EQ(QDir(impresos).entryList(QDir::Files, QDir::Name),
              (QStringList{QStringLiteral("devolucion-contado-20261122-104233-001.pdf"),
                           QStringLiteral("ticket-20261122-104233-001.pdf"),
                           QStringLiteral("ticket-20261122-104233-002.pdf")}));
}

TEST(Pdf, WhatCannotBeWrittenLeavesNoFile) {
    QTemporaryDir carpeta;
    for (const ClasePapel clase : {ClasePapel::Rollo, ClasePapel::Hoja}) {
        const auto papel = NuevoDocumentoPdf(carpeta.path(), clase, QStringLiteral("lleno"), kMomento);
        papel->Linea(QStringLiteral("texto"));
        const DiscoLleno lleno(1000);
        EXPECT_EQ(NumeroDeError([&] { papel->Terminar(); }), errores::kEscritura);
    }
    NuevoDocumentoPdf(carpeta.path(), ClasePapel::Hoja, QStringLiteral("abandonado"), kMomento).reset();
    EXPECT_TRUE(QDir(carpeta.path()).isEmpty());

    QFile obstaculo(carpeta.filePath(QStringLiteral("archivo")));
    ASSERT_TRUE(obstaculo.open(QIODevice::WriteOnly));
    EXPECT_EQ(NumeroDeError([&] {
                  NuevoDocumentoPdf(obstaculo.fileName(), ClasePapel::Rollo, QStringLiteral("x"), kMomento);
              }),
              errores::kEscritura);
}

TEST(Impresoras, ChosenByPurpose) {
    QTemporaryDir carpeta;
    QSettings ajustes(carpeta.filePath(QStringLiteral("ajustes.ini")), QSettings::IniFormat);
    const struct {
        const char *impTick, *impList, *ticket, *listado;
    } casos[] = {{"", "", "Láser", "Láser"},
                 {"Tickets", "PDF", "Tickets", "PDF"},
                 {"Vendida", "tickets", "Láser", "Láser"}};
    for (const auto &caso : casos) {
        ajustes.setValue("ImpTick", QString::fromUtf8(caso.impTick));
        ajustes.setValue("ImpList", QString::fromUtf8(caso.impList));
        for (const bool ticket : {true, false}) {
            ImpresorasPrueba impresoras;
            const QString esperada = QString::fromUtf8(ticket ? caso.ticket : caso.listado);
            EXPECT_EQ(ElegirImpresora(impresoras, ajustes, ticket ? Proposito::Ticket : Proposito::Listado),
                      esperada);
            EXPECT_EQ(impresoras.actual, esperada);
        }
    }
}

TEST(Impresoras, FailuresOfTheChoiceAreSwallowed) {
    struct Rotas final : Impresoras {
        QStringList Nombres() const override {
            throw ErrorDatos(errores::kImpresora, QStringLiteral("Sin cola."));
        }
        QString Actual() const override { return {}; }
        void HacerActual(const QString &) override {}
        std::unique_ptr<Superficie> NuevoDocumento(ClasePapel, const QString &) override { return {}; }
    } rotas;
    QTemporaryDir carpeta;
    const QSettings ajustes(carpeta.filePath(QStringLiteral("ajustes.ini")), QSettings::IniFormat);
    EXPECT_EQ(ElegirImpresora(rotas, ajustes, Proposito::Ticket), QString());
}
