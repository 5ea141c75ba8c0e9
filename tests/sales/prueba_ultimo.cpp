// The card of the last issued document: what it tells, what it prints, how long it stays.
#include "documents/archivofactura.h"
#include "ventanaprueba.h"

namespace tarvo {
namespace {

class Ultimo : public VentanaVentas {
  protected:
    void Vender(const char *codigo) {
        Escanear(codigo);
        C<QComboBox>("cboxVendedores")->setCurrentIndex(1);
        mundo.preguntas.Espera(QStringLiteral("Confirma la emisión de la factura?"), Respuesta::Si,
                               Respuesta::Si);
        mundo.preguntas.Espera(QStringLiteral("Desea imprimir el ticket?"), Respuesta::Si, Respuesta::Si);
        mundo.preguntas.EsperaMensaje(QStringLiteral("La venta se realizó con exito."), Icono::Informacion);
        Clic("cmdEmitir");
    }
    QStringList Papel(std::size_t documento) { return mundo.impresoras.documentos.at(documento)->Lineas(); }
};

TEST_F(Ultimo, StaysBeyondItsWindowAndPrintsTheTicketAgain) {
    Abrir();
    EXPECT_FALSE(Se("frUltimo"));
    Teclear(Campo("txtNumComp"), QStringLiteral("77"));
    Campo("txtBuscar")->setFocus();
    Vender("7790001000011");
    EXPECT_TRUE(Se("frUltimo"));
    EXPECT_EQ(Texto("lblUltimoTotal"), QStringLiteral("$ 121,00 · 10:42 · 77 · Factura contado")); // folded
    ventana->resize(1000, 760);
    EXPECT_EQ(Texto("lblUltimo"), QStringLiteral("77 · Factura contado"));
    EXPECT_EQ(Texto("lblUltimoTotal"), QStringLiteral("$ 121,00 · 10:42"));
    EXPECT_EQ(C<QPushButton>("cmdReimprimir")->text(), QStringLiteral("Reimprimir ticket"));
    EXPECT_EQ(C<QPushButton>("cmdFactura")->text(), QStringLiteral("Imprimir factura"));
    EXPECT_FALSE(C<QPushButton>("cmdFactura")->isEnabled()); // no layout is stored

    mundo.reloj.Poner(QDateTime({2026, 11, 23}, {9, 0}));
    Abrir();
    Clic("cmdReimprimir");
    ASSERT_EQ(mundo.impresoras.documentos.size(), 2U);
    EXPECT_EQ(Papel(1), Papel(0));
    EXPECT_EQ(ConFoco(), QStringLiteral("txtBuscar"));
    mundo.impresoras.fallar = true;
    mundo.preguntas.EsperaMensaje(QStringLiteral("No se pudo imprimir. No hay impresora."), Icono::Critico);
    Tecla(ventana.get(), Qt::Key_R, Qt::ControlModifier);
    EXPECT_TRUE(QTest::qWaitFor([this] { return mundo.preguntas.Terminado(); })); // a pressed button shows it
    EXPECT_EQ(mundo.datos.Filas("SELECT id FROM ventas.Ventas").size(), 1U);
}

TEST_F(Ultimo, PrintsTheInvoiceOnTheStoredLayout) {
    const QString ruta = mundo.datos.Carpeta() + QStringLiteral("/factura.kzd");
    GuardarDiseno(ruta, DisenoFactura(), {}, QDateTime());
    mundo.datos.Ejecutar(QStringLiteral("UPDATE main.Factura SET rutafactura='%1', cantlineas='1'")
                             .arg(ruta)
                             .toUtf8()
                             .constData());
    Abrir();
    Escanear("7790001000028");
    Vender("7790001000011");
    Clic("cmdFactura");
    ASSERT_EQ(mundo.impresoras.documentos.size(), 2U);
    const QString papel = Papel(1).join(u'\n');
    EXPECT_EQ(papel.count(u'\f'), 1); // two lines, one a sheet
    for (const char *texto : {"Azúcar", "Yerba mate", "Sigue...", "V1 - Ana", "22/11/2026"})
        EXPECT_TRUE(papel.contains(QString::fromUtf8(texto))) << texto;

    QFile::remove(ruta);
    mundo.preguntas.EsperaMensaje(QStringLiteral("No se reconoce el formato del archivo."),
                                  Icono::Informacion);
    Clic("cmdFactura");
    EXPECT_EQ(mundo.impresoras.documentos.size(), 2U);
}

} // namespace
} // namespace tarvo
