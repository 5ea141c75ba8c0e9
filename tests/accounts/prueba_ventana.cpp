// The accounts window by keys and clicks.
#include "cuentasprueba.h"

#include "accounts/ventanas/frmestados.h"
#include "desktop/ventanas/listavista.h"
#include "testkit/anfitrionprueba.h"

#include <QDateEdit>
#include <QFrame>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTimeEdit>

namespace tarvo {
namespace {

class VentanaEstados : public ::testing::Test {
  protected:
    VentanaEstados() { mundo.datos.Ejecutar(kHistoria); }

    void Abrir() {
        ventana = std::make_unique<FrmEstados>(mundo.servicios(), anfitrion, nullptr);
        ventana->resize(800, 455);
        MostrarVentana(*ventana);
    }
    template <typename T> T *C(const char *nombre) { return Control<T>(*ventana, nombre); }
    ListaVista *Lista(const char *nombre) { return C<ListaVista>(nombre); }
    QString Texto(const char *etiqueta) { return C<QLabel>(etiqueta)->text(); }
    bool Se(const char *nombre) { return C<QWidget>(nombre)->isVisible(); }
    // Keys go to whatever has the focus, as from a keyboard.
    void Teclas(const QString &texto) { QTest::keyClicks(QApplication::focusWidget(), texto); }
    void Pulsa(Qt::Key tecla, int veces = 1) {
        for (int i = 0; i < veces; ++i)
            QTest::keyClick(QApplication::focusWidget(), tecla);
    }
    // The first of `nombres` that Tab comes to.
    void TabHasta(const char *nombre) {
        for (int i = 0; i < 30 && ConFoco() != QString::fromUtf8(nombre); ++i)
            Pulsa(Qt::Key_Tab);
        ASSERT_EQ(ConFoco(), QString::fromUtf8(nombre));
    }
    void ElegirCliente(const char *parte) {
        TabHasta("cmdCliente");
        Pulsa(Qt::Key_Return);
        TabHasta("txtBuscarClientes");
        Teclas(QString::fromUtf8(parte));
        Pulsa(Qt::Key_Return);
        TabHasta("LVClientes");
        Pulsa(Qt::Key_Return);
    }

    MundoPrueba mundo;
    AnfitrionPrueba anfitrion;
    std::unique_ptr<FrmEstados> ventana;
};

TEST_F(VentanaEstados, OpensEmptyWithTodayInThePickers) {
    Abrir();
    EXPECT_EQ(Texto("lblTitulo"), QStringLiteral("Estado de cuenta"));
    EXPECT_EQ(Texto("lblSaldo1") + Texto("lblSaldo"), QStringLiteral("Saldo$ 0,00"));
    EXPECT_EQ(C<QLineEdit>("txtCantidad")->text(), QStringLiteral("$ 0,00"));
    EXPECT_EQ(C<QDateEdit>("DTPDesde")->date(), QDate(2026, 11, 22));
    EXPECT_EQ(C<QDateEdit>("DTPHasta")->date(), QDate(2026, 11, 22));
    EXPECT_EQ(C<QTimeEdit>("DTPDesde1")->text(), QStringLiteral("00:00"));
    EXPECT_EQ(C<QTimeEdit>("DTPHasta1")->text(), QStringLiteral("23:59"));
    for (const char *nombre : {"cmdAgregar", "cmdContinuarDev", "cmdCancelarDevolver", "lblCliente1",
                               "frCaja", "LVEstadoContado", "LVCaja", "picClientes", "lblIdCliente"})
        EXPECT_FALSE(Se(nombre)) << nombre;
    for (const char *nombre : {"cmdImprimir", "cmdEliminar", "cmdDevolucion", "cmdRecibo", "txtCantidad"})
        EXPECT_FALSE(C<QWidget>(nombre)->isEnabled()) << nombre;
    EXPECT_FALSE(anfitrion.Exportable());
    EXPECT_FALSE(ventana->ParaExportar().has_value());
    EXPECT_EQ(ConFoco(), QStringLiteral("cmdCliente"));
}

TEST_F(VentanaEstados, AReceiptAndAReturnByKeysAlone) {
    Abrir();
    ElegirCliente("jua");
    EXPECT_EQ(Texto("lblCliente") + Texto("lblIdCliente"), QStringLiteral("Juan2"));
    EXPECT_EQ(ConFoco(), QStringLiteral("LVEstado"));
    EXPECT_TRUE(anfitrion.Exportable());
    EXPECT_EQ(ventana->ParaExportar()->nombre, QStringLiteral("LVEstado"));
    EXPECT_EQ(ventana->ParaExportar()->cliente, QStringLiteral("Juan"));
    TabHasta("cmdRecibo");
    Pulsa(Qt::Key_Return);
    EXPECT_EQ(ConFoco(), QStringLiteral("txtCantidad"));
    EXPECT_EQ(C<QLineEdit>("txtCantidad")->selectedText(), QStringLiteral("0,00"));
    Teclas(QStringLiteral("1a2.5-"));
    Pulsa(Qt::Key_Return);
    EXPECT_EQ(ConFoco(), QStringLiteral("cmdAgregar"));
    EXPECT_EQ(C<QLineEdit>("txtCantidad")->text(), QStringLiteral("$ 12,50"));
    mundo.preguntas.Espera(QStringLiteral("Desea imprimir el recibo?"), Respuesta::Si, Respuesta::No);
    Pulsa(Qt::Key_Return);
    EXPECT_EQ(Texto("lblSaldo"), QStringLiteral("$ -12,50"));
    EXPECT_FALSE(Se("cmdAgregar"));
    EXPECT_EQ(ConFoco(), QStringLiteral("LVEstado"));

    mundo.datos.Cerrar();
    mundo.datos.Ejecutar("UPDATE ventas.Ventas SET descripcion='Factura contado' WHERE id=9");
    mundo.datos.Abrir();
    ElegirCliente("jua");
    TabHasta("cmdDevolucion");
    Pulsa(Qt::Key_Space);
    EXPECT_EQ(ConFoco(), QStringLiteral("LVEstado"));
    Pulsa(Qt::Key_Space);
    TabHasta("cmdContinuarDev");
    mundo.preguntas.Espera(
        QStringLiteral("Desea imprimir el comprobante?\n22/11/2026 - 10:30 - Factura contado"), Respuesta::Si,
        Respuesta::No);
    Pulsa(Qt::Key_Return);
    EXPECT_EQ(mundo.datos.Filas("SELECT tipo, total FROM ventas.Ventas WHERE id>9"),
              (std::vector<std::vector<QString>>{{QStringLiteral("Recibo"), QStringLiteral("$ 12,50")},
                                                 {QStringLiteral("DevContado"), QStringLiteral("$ 3,00")}}));
    EXPECT_FALSE(Se("cmdContinuarDev"));
    EXPECT_EQ(ConFoco(), QStringLiteral("LVEstado"));
}

TEST_F(VentanaEstados, ReturnModeDisablesWhatChoosesAViewAndChecksRowsThatItSelects) {
    Abrir();
    Pulsar(C<QWidget>("cmdContado"));
    EXPECT_EQ(Texto("lblTitulo"), QStringLiteral("Estado de cuenta - Ventas contado"));
    EXPECT_EQ(Texto("lblSaldo1"), QStringLiteral("Total"));
    Pulsar(C<QWidget>("cmdDevolucion"));
    for (const char *nombre : {"cmdCliente", "cmdContado", "cmdCaja", "frCont1", "cmdImprimir"})
        EXPECT_FALSE(C<QWidget>(nombre)->isEnabled()) << nombre;
    EXPECT_TRUE(Se("cmdContinuarDev") && Se("cmdCancelarDevolver"));
    ListaVista *const lista = Lista("LVEstadoContado");
    lista->SeleccionarFila(-1);
    lista->Lista()->setData(lista->Lista()->index(0, 0), Qt::Checked, Qt::CheckStateRole);
    EXPECT_EQ(lista->FilaActual(), 0);
    Pulsar(C<QWidget>("cmdCancelarDevolver"));
    EXPECT_EQ(lista->Lista()->Filas(), 2);
    EXPECT_TRUE(C<QWidget>("frCont1")->isEnabled());
}

TEST_F(VentanaEstados, ThePanelOfTheCashSheetTakesThePlaceOfTheButtons) {
    Abrir();
    Pulsar(C<QWidget>("cmdCaja"));
    EXPECT_TRUE(Se("frCaja"));
    EXPECT_FALSE(Se("frCont1"));
    EXPECT_EQ(ConFoco(), QStringLiteral("DTPDesde"));
    Pulsa(Qt::Key_Return, 4);
    EXPECT_EQ(ConFoco(), QStringLiteral("cmdVerCaja"));
    Pulsa(Qt::Key_Return);
    EXPECT_EQ(Lista("LVCaja")->Lista()->Filas(), 2);
    EXPECT_EQ(Texto("lblTitulo"), QStringLiteral("Estado de cuenta - Caja"));
    EXPECT_EQ(Texto("lblSaldo"), QStringLiteral("$ 3,00"));
    C<QTimeEdit>("DTPDesde1")->setTime(QTime(23, 59));
    C<QTimeEdit>("DTPHasta1")->setTime(QTime(23, 58));
    mundo.preguntas.EsperaMensaje(QStringLiteral("La hora inicial debe ser menor o igual a la hora final."),
                                  Icono::Informacion);
    Pulsar(C<QWidget>("cmdVerCaja"));
    EXPECT_EQ(ConFoco(), QStringLiteral("DTPDesde1"));
    ventana->EjecutarContado();
    EXPECT_FALSE(Se("frCaja"));
    EXPECT_TRUE(Se("cmdContinuarDev"));
}

TEST_F(VentanaEstados, EscapeClosesThePickerAndTheWindowIsUsableAgain) {
    Abrir();
    ventana->EjecutarPorCliente();
    EXPECT_TRUE(Se("picClientes"));
    EXPECT_FALSE(C<QWidget>("frEstado")->isEnabled() || C<QWidget>("frSeleccionar")->isEnabled());
    Pulsa(Qt::Key_Escape);
    EXPECT_FALSE(Se("picClientes"));
    EXPECT_EQ(ConFoco(), QStringLiteral("cmdCliente"));
    ventana->EjecutarPorCliente();
    ventana->EjecutarContado();
    EXPECT_FALSE(Se("picClientes"));
    EXPECT_TRUE(C<QWidget>("frEstado")->isEnabled());
    EXPECT_EQ(ConFoco(), QStringLiteral("LVEstadoContado"));
}

// Nothing is cut: neither an amount at the smallest size nor the balance.
TEST_F(VentanaEstados, AmountsAreReadableAtEverySize) {
    mundo.datos.Ejecutar("UPDATE ventas.Ventas SET total='$ 1234567,89' WHERE id<3");
    Abrir();
    ElegirCliente("S.A.");
    ListaVista *const lista = Lista("LVEstado");
    for (const QSize medida : {QSize(640, 380), QSize(800, 455), QSize(1280, 760)}) {
        ventana->resize(medida);
        QApplication::processEvents();
        for (const int columna :
             {movimiento::Fecha, movimiento::Debe, movimiento::Haber, movimiento::Subtotal})
            EXPECT_GE(lista->columnWidth(columna),
                      lista->sizeHintForIndex(lista->Lista()->index(0, columna)).width())
                << medida.width() << " " << columna;
        EXPECT_LE(lista->header()->length(), lista->viewport()->width());
    }
}

} // namespace
} // namespace tarvo
