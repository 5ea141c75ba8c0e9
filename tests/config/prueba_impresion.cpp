// The print panel: lines of an invoice, printers, and the ticket lines above it.
#include "config/nodosopciones.h"
#include "opcionesprueba.h"

#include <SQLiteCpp/SQLiteCpp.h>

#include <QAction>
#include <QFile>
#include <QToolBar>

namespace tarvo {
namespace {

class Impresion : public OpcionesPrueba {
  protected:
    void AbrirPanel() {
        Abrir();
        ElegirNodo(kNodoImpresion);
    }
    void PulsarNodo(int nodo) {
        auto *arbol = Control<QTreeView>(*ventana, "TVOpciones");
        const QRect lugar = arbol->visualRect(arbol->model()->index(nodo, 0));
        QTest::mouseClick(arbol->viewport(), Qt::LeftButton, {}, lugar.center());
    }
    QString CantLineas() { return Filas("SELECT cantlineas FROM Factura"); }
    // What the file itself holds, as another program would find it after a crash.
    QString EnDisco(const char *consulta) {
        const QString copia = mundo.datos.Carpeta() + u"/copia.db"_qs;
        QFile::remove(copia);
        EXPECT_TRUE(QFile::copy(mundo.datos.Carpeta() + u"/config.mdb"_qs, copia));
        SQLite::Database base(copia.toStdString());
        return QString::fromStdString(base.execAndGet(consulta).getString());
    }
    QAction *Negrita(const char *barra) { return Control<QToolBar>(*ventana, barra)->actions().constFirst(); }
    QWidget *picTicket() { return Control<QWidget>(*ventana, "picTicket"); }
};

// --- lines of detail

TEST_F(Impresion, EveryChangeOfTheDetailLinesIsOnDiskAtOnce) {
    Sql("UPDATE Factura SET cantlineas = '9', rutafactura = '/f.kzd'");
    AbrirPanel();
    EXPECT_EQ(Texto("txtLinDetalle"), u"9"_qs);
    Teclear("txtLinDetalle", "2");
    EXPECT_EQ(EnDisco("SELECT cantlineas FROM Factura"), u"2"_qs);
    Teclear("txtLinDetalle", "1a-5");
    EXPECT_EQ(CantLineas(), u"15"_qs);
    Control<QAbstractSlider>(*ventana, "FSBLinDetalle")->setValue(-29);
    EXPECT_EQ(EnDisco("SELECT cantlineas FROM Factura"), u"29"_qs);
    Tecla(Campo("txtLinDetalle"), Qt::Key_Up);
    EXPECT_EQ(CantLineas(), u"30"_qs);
    Campo("txtLinDetalle")->selectAll();
    Tecla(Campo("txtLinDetalle"), Qt::Key_Backspace);
    EXPECT_EQ(CantLineas(), u"0"_qs);
    Teclear("txtLinDetalle", "007");
    EXPECT_EQ(CantLineas(), u"7"_qs);
    EXPECT_EQ(Filas("SELECT rutafactura FROM Factura"), u"/f.kzd"_qs);
}

TEST_F(Impresion, MoreThanThirtyLinesAreRefusedOnLeavingTheField) {
    AbrirPanel();
    const char *mensaje = "La cantidad de lineas de detalle debe ser menor o igual a 30.";
    Teclear("txtLinDetalle", "45");
    Tecla(Campo("txtLinDetalle"), Qt::Key_Up);
    EXPECT_EQ(CantLineas(), u"46"_qs); // written while it is typed
    EsperaMensaje(mensaje);
    Tecla(Campo("txtLinDetalle"), Qt::Key_Return);
    EXPECT_EQ(Texto("txtLinDetalle"), u"30"_qs);
    EXPECT_EQ(CantLineas(), u"30"_qs);
    EXPECT_EQ(ConFoco(), u"txtLinDetalle"_qs);

    Teclear("txtLinDetalle", "300");
    EsperaMensaje(mensaje);
    Tecla(Campo("txtLinDetalle"), Qt::Key_Escape); // closing the window leaves the field too
    EXPECT_TRUE(ventana->isVisible());
    EXPECT_EQ(CantLineas(), u"30"_qs);
    EXPECT_EQ(Campo("txtLinDetalle")->selectedText(), u"30"_qs);

    Teclear("txtLinDetalle", "31");
    EsperaMensaje(mensaje);
    PulsarNodo(0);
    EXPECT_EQ(CantLineas(), u"30"_qs);
    EXPECT_EQ(ConFoco(), u"txtLinDetalle"_qs);
    EXPECT_EQ(Campo("txtLinDetalle")->selectedText(), u"30"_qs);
    PulsarNodo(0);
    EXPECT_TRUE(Control<QWidget>(*ventana, "frImpuestos")->isVisible());
    PulsarNodo(kNodoImpresion);
    Campo("txtLinDetalle")->setFocus();
    Tecla(Campo("txtLinDetalle"), Qt::Key_Escape);
    EXPECT_FALSE(ventana->isVisible());
}

// --- printers

TEST_F(Impresion, OnePrinterIsCheckedPerPurposeAndStoredAtOnce) {
    mundo.ajustes.setValue(u"ImpTick"_qs, u"Láser"_qs);
    AbrirPanel();
    ListaVista *ticket = Lista("LVImpTick");
    ListaVista *listado = Lista("LVImpList");
    const auto marcas = [](ListaVista *lista) {
        QString texto;
        for (int fila = 0; fila < lista->Lista()->Filas(); ++fila)
            texto += lista->Lista()->Marcada(fila) ? QLatin1Char('x') : QLatin1Char('-');
        return texto;
    };
    EXPECT_EQ(marcas(ticket), u"-x-"_qs);
    EXPECT_EQ(marcas(listado), u"---"_qs);
    EXPECT_EQ(ticket->FilaActual(), 0);
    EXPECT_FALSE(mundo.ajustes.contains(u"ImpList"_qs)); // filling chooses nothing

    const auto clic = [](ListaVista *lista, int fila, int x) {
        const QRect celda = lista->visualRect(lista->model()->index(fila, 0));
        QTest::mouseClick(lista->viewport(), Qt::LeftButton, {}, QPoint(x, celda.center().y()));
    };
    clic(ticket, 0, 120);
    EXPECT_EQ(marcas(ticket), u"x--"_qs);
    clic(ticket, 0, 12); // the check box of the checked row: it can't be emptied
    EXPECT_EQ(marcas(ticket), u"x--"_qs);
    clic(ticket, 2, 12);
    EXPECT_EQ(marcas(ticket), u"--x"_qs);
    EXPECT_EQ(ticket->FilaActual(), 2);
    ASSERT_TRUE(listado->model()->setData(listado->model()->index(1, 0), Qt::Checked, Qt::CheckStateRole));
    EXPECT_EQ(marcas(listado), u"-x-"_qs);

    const QSettings otra(mundo.ajustes.fileName(), QSettings::IniFormat);
    EXPECT_EQ(otra.value(u"ImpTick"_qs).toString(), u"PDF"_qs);
    EXPECT_EQ(otra.value(u"ImpList"_qs).toString(), u"Láser"_qs);

    mundo.impresoras.nombres = {u"Nueva"_qs, u"Láser"_qs};
    Pulsar("cmdImpActualizar");
    EXPECT_EQ(marcas(ticket), u"--"_qs); // the stored one is switched off
    EXPECT_EQ(marcas(listado), u"-x"_qs);
    EXPECT_EQ(mundo.ajustes.value(u"ImpTick"_qs).toString(), u"PDF"_qs);
    mundo.impresoras.nombres.clear();
    Pulsar("cmdImpActualizar");
    EXPECT_EQ(ticket->FilaActual(), -1);
}

TEST_F(Impresion, APrinterIsAddedInTheSettingsOfTheSystem) {
    AbrirPanel();
    Pulsar("cmdImpAgregar");
    EXPECT_EQ(mundo.escritorio.ajustesImpresoras, 1);
    mundo.escritorio.responde = false;
    EsperaMensaje("No se pudo abrir la configuración de impresoras del sistema.");
    Pulsar("cmdImpAgregar");
}

// --- ticket lines

TEST_F(Impresion, TheTicketLinesAreEditedAboveTheWindow) {
    Sql("UPDATE Ticket SET linea1 = 'Tarvo', negrita1 = 'S', linea5 = 'Gracias', negrita5 = 'n'");
    AbrirPanel();
    Pulsar("cmdLineasTicket");
    EXPECT_TRUE(picTicket()->isVisible());
    EXPECT_FALSE(Control<QWidget>(*ventana, "frFondo")->isEnabled());
    EXPECT_EQ(ConFoco(), u"txtLinea1"_qs);
    EXPECT_EQ(Texto("txtLinea1"), u"Tarvo"_qs);
    EXPECT_TRUE(Campo("txtLinea1")->font().bold());
    EXPECT_FALSE(Negrita("tbrNegrita5")->isChecked());

    Negrita("tbrNegrita1")->trigger();
    EXPECT_FALSE(Campo("txtLinea1")->font().bold());
    Negrita("tbrNegrita4")->trigger();
    EXPECT_TRUE(Campo("txtLinea4")->font().bold());
    Teclear("txtLinea4", "Ñandú");
    EXPECT_EQ(Filas("SELECT linea4 FROM Ticket"), QString());
    Pulsar("cmdGuardarTicket");
    EXPECT_EQ(Filas("SELECT * FROM Ticket").section(QLatin1Char('|'), 1),
              u"Tarvo|||Ñandú|Gracias|N|N|N|S|N"_qs);

    Tecla(Campo("txtLinea4"), Qt::Key_Escape);
    EXPECT_FALSE(picTicket()->isVisible());
    EXPECT_TRUE(Control<QWidget>(*ventana, "frFondo")->isEnabled());
    EXPECT_EQ(ConFoco(), u"cmdLineasTicket"_qs);
    Tecla(ventana.get(), Qt::Key_Escape);
    EXPECT_FALSE(ventana->isVisible());
}

TEST_F(Impresion, TheTestTicketShowsTheLinesAsTyped) {
    mundo.ajustes.setValue(u"ImpTick"_qs, u"Tickets"_qs);
    AbrirPanel();
    Pulsar("cmdLineasTicket");
    Teclear("txtLinea1", "Tarvo");
    Negrita("tbrNegrita1")->trigger();
    Teclear("txtLinea2", "Avenida Siempreviva 742, Ñuñoa");
    Teclear("txtlinea5", "Gracias!");
    QAction *prueba = Control<QToolBar>(*ventana, "tbrTicket")->actions().constFirst();
    EsperaPregunta("Desea imprimir un ticket de prueba?", Respuesta::No, Respuesta::Si);
    prueba->trigger();
    EXPECT_TRUE(mundo.impresoras.documentos.empty());
    EsperaPregunta("Desea imprimir un ticket de prueba?", Respuesta::Si, Respuesta::Si);
    prueba->trigger();
    ASSERT_EQ(mundo.impresoras.documentos.size(), 1U);
    EXPECT_EQ(mundo.impresoras.actual, u"Tickets"_qs);
    EXPECT_TRUE(mundo.impresoras.documentos[0]->Terminado());
    EXPECT_EQ(mundo.impresoras.documentos[0]->Volcado(),
              u"\n            [11][n]Tarvo\n[/n]Avenida Siempreviva 742, Ñuñoa\n\n\n          Gracias!\n"_qs);

    mundo.impresoras.fallar = true;
    EsperaPregunta("Desea imprimir un ticket de prueba?", Respuesta::Si, Respuesta::Si);
    EsperaMensaje("No se pudo imprimir el ticket de prueba.\nNo hay impresora.", Icono::Critico);
    prueba->trigger();
}

} // namespace
} // namespace tarvo
