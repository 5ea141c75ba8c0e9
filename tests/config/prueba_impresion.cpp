// The print panel: lines of an invoice, printers, and the ticket lines above it.
#include "config/nodosopciones.h"
#include "opcionesprueba.h"

#include <SQLiteCpp/SQLiteCpp.h>

namespace tarvo {
namespace {

class Impresion : public OpcionesPrueba {
  protected:
    void AbrirPanel() {
        Abrir();
        ElegirNodo(kNodoImpresion);
    }
    void PulsarNodo(int nodo) {
        auto *arbol = C<QTreeView>("TVOpciones");
        const QRect lugar = arbol->visualRect(arbol->model()->index(nodo, 0));
        QTest::mouseClick(arbol->viewport(), Qt::LeftButton, {}, lugar.center());
    }
    QString CantLineas() { return Tabla("SELECT cantlineas FROM Factura"); }
    // What the file itself holds, as another program would find it after a crash.
    QString EnDisco(const char *consulta) {
        const QString copia = mundo.datos.Carpeta() + u"/copia.db"_qs;
        QFile::remove(copia);
        EXPECT_TRUE(QFile::copy(mundo.datos.Carpeta() + u"/config.mdb"_qs, copia));
        SQLite::Database base(copia.toStdString());
        return QString::fromStdString(base.execAndGet(consulta).getString());
    }
    QAction *Negrita(const char *barra) { return C<QToolBar>(barra)->actions().constFirst(); }
};

// --- lines of detail

TEST_F(Impresion, EveryChangeOfTheDetailLinesIsOnDiskAtOnce) {
    Sql("UPDATE Factura SET cantlineas = '9', rutafactura = '/f.kzd'");
    AbrirPanel();
    EXPECT_EQ(Texto("txtLinDetalle"), u"9");
    Teclear("txtLinDetalle", "2");
    EXPECT_EQ(EnDisco("SELECT cantlineas FROM Factura"), u"2");
    Teclear("txtLinDetalle", "1a-5");
    EXPECT_EQ(CantLineas(), u"15");
    C<QAbstractSlider>("FSBLinDetalle")->setValue(-29);
    EXPECT_EQ(EnDisco("SELECT cantlineas FROM Factura"), u"29");
    Tecla(Campo("txtLinDetalle"), Qt::Key_Up);
    EXPECT_EQ(CantLineas(), u"30");
    Campo("txtLinDetalle")->selectAll();
    Tecla(Campo("txtLinDetalle"), Qt::Key_Backspace);
    EXPECT_EQ(CantLineas(), u"0");
    Teclear("txtLinDetalle", "007");
    EXPECT_EQ(CantLineas(), u"7");
    EXPECT_EQ(Tabla("SELECT rutafactura FROM Factura"), u"/f.kzd");
}

TEST_F(Impresion, MoreThanThirtyLinesAreRefusedOnLeavingTheField) {
    AbrirPanel();
    const char *mensaje = "La cantidad de lineas de detalle debe ser menor o igual a 30.";
    Teclear("txtLinDetalle", "45");
    Tecla(Campo("txtLinDetalle"), Qt::Key_Up);
    EXPECT_EQ(CantLineas(), u"46"); // written while it is typed
    EsperaMensaje(mensaje);
    Tecla(Campo("txtLinDetalle"), Qt::Key_Return);
    EXPECT_EQ(Texto("txtLinDetalle"), u"30");
    EXPECT_EQ(CantLineas(), u"30");
    EXPECT_EQ(ConFoco(), u"txtLinDetalle");

    Teclear("txtLinDetalle", "300");
    EsperaMensaje(mensaje);
    Tecla(Campo("txtLinDetalle"), Qt::Key_Escape); // closing the window leaves the field too
    EXPECT_TRUE(ventana->isVisible());
    EXPECT_EQ(CantLineas(), u"30");
    EXPECT_EQ(Campo("txtLinDetalle")->selectedText(), u"30");

    for (const std::string &lineas : {std::string("31"), std::string(101, '4')}) {
        Campo("txtLinDetalle")->setText(QString::fromStdString(lineas));
        EsperaMensaje(mensaje);
        PulsarNodo(0);
        EXPECT_EQ(CantLineas(), u"30");
    }
    EXPECT_EQ(ConFoco(), u"txtLinDetalle");
    EXPECT_EQ(Campo("txtLinDetalle")->selectedText(), u"30");
    PulsarNodo(0);
    EXPECT_TRUE(Se("frImpuestos"));
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
            texto += lista->Lista()->Marcada(fila) ? u'x' : u'-';
        return texto;
    };
    EXPECT_EQ(marcas(ticket), u"-x-");
    EXPECT_EQ(marcas(listado), u"---");
    EXPECT_EQ(ticket->FilaActual(), 0);
    EXPECT_FALSE(mundo.ajustes.contains(u"ImpList"_qs)); // filling chooses nothing

    ClicFila(ticket, 0, 120);
    EXPECT_EQ(marcas(ticket), u"x--");
    ClicFila(ticket, 0, 12); // the check box of the checked row: it can't be emptied
    EXPECT_EQ(marcas(ticket), u"x--");
    ClicFila(ticket, 2, 12);
    EXPECT_EQ(marcas(ticket), u"--x");
    EXPECT_EQ(ticket->FilaActual(), 2);
    ASSERT_TRUE(listado->model()->setData(listado->model()->index(1, 0), Qt::Checked, Qt::CheckStateRole));
    EXPECT_EQ(marcas(listado), u"-x-");

    const QSettings otra(mundo.ajustes.fileName(), QSettings::IniFormat);
    EXPECT_EQ(otra.value(u"ImpTick"_qs).toString(), u"PDF");
    EXPECT_EQ(otra.value(u"ImpList"_qs).toString(), u"Láser");

    mundo.impresoras.nombres = {u"Nueva"_qs, u"Láser"_qs};
    Clic("cmdImpActualizar");
    EXPECT_EQ(marcas(ticket), u"--"); // the stored one is switched off
    EXPECT_EQ(marcas(listado), u"-x");
    EXPECT_EQ(mundo.ajustes.value(u"ImpTick"_qs).toString(), u"PDF");
    mundo.impresoras.nombres.clear();
    Clic("cmdImpActualizar");
    EXPECT_EQ(ticket->FilaActual(), -1);
}

TEST_F(Impresion, APrinterIsAddedInTheSettingsOfTheSystem) {
    AbrirPanel();
    Clic("cmdImpAgregar");
    EXPECT_EQ(mundo.escritorio.ajustesImpresoras, 1);
    mundo.escritorio.responde = false;
    EsperaMensaje("No se pudo abrir la configuración de impresoras del sistema.");
    Clic("cmdImpAgregar");
}

// --- ticket lines

TEST_F(Impresion, TheTicketLinesAreEditedAboveTheWindow) {
    Sql("UPDATE Ticket SET linea1 = 'Tarvo', negrita1 = 'S', linea5 = 'Gracias', negrita5 = 'n'");
    AbrirPanel();
    Clic("cmdLineasTicket");
    EXPECT_TRUE(Se("picTicket"));
    EXPECT_FALSE(Habilitado("frFondo"));
    EXPECT_EQ(ConFoco(), u"txtLinea1");
    EXPECT_EQ(Texto("txtLinea1"), u"Tarvo");
    EXPECT_TRUE(Campo("txtLinea1")->font().bold());
    EXPECT_FALSE(Negrita("tbrNegrita5")->isChecked());

    Negrita("tbrNegrita1")->trigger();
    EXPECT_FALSE(Campo("txtLinea1")->font().bold());
    Negrita("tbrNegrita4")->trigger();
    EXPECT_TRUE(Campo("txtLinea4")->font().bold());
    Teclear("txtLinea4", "Ñandú");
    EXPECT_EQ(Tabla("SELECT linea4 FROM Ticket"), QString());
    Clic("cmdGuardarTicket");
    EXPECT_EQ(Tabla("SELECT * FROM Ticket").section(u'|', 1), u"Tarvo|||Ñandú|Gracias|N|N|N|S|N"_qs);

    Tecla(Campo("txtLinea4"), Qt::Key_Escape);
    EXPECT_FALSE(Se("picTicket"));
    EXPECT_TRUE(Habilitado("frFondo"));
    EXPECT_EQ(ConFoco(), u"cmdLineasTicket");
    Tecla(ventana.get(), Qt::Key_Escape);
    EXPECT_FALSE(ventana->isVisible());
}

TEST_F(Impresion, TheTestTicketShowsTheLinesAsTyped) {
    mundo.ajustes.setValue(u"ImpTick"_qs, u"Tickets"_qs);
    AbrirPanel();
    Clic("cmdLineasTicket");
    Teclear("txtLinea1", "Tarvo");
    Negrita("tbrNegrita1")->trigger();
    Teclear("txtLinea2", "Avenida Siempreviva 742, Ñuñoa");
    Teclear("txtlinea5", "Gracias!");
    QAction *prueba = C<QToolBar>("tbrTicket")->actions().constFirst();
    EsperaPregunta("Desea imprimir un ticket de prueba?", No, Si);
    prueba->trigger();
    EXPECT_TRUE(mundo.impresoras.documentos.empty());
    EsperaPregunta("Desea imprimir un ticket de prueba?", Si, Si);
    prueba->trigger();

    EXPECT_EQ(mundo.impresoras.actual, u"Tickets");
    EXPECT_EQ(mundo.impresoras.documentos.at(0)->Volcado(),
              u"\n            [11][n]Tarvo\n[/n]Avenida Siempreviva 742, Ñuñoa\n\n\n          Gracias!\n"_qs);

    mundo.impresoras.fallar = true;
    EsperaPregunta("Desea imprimir un ticket de prueba?", Si, Si);
    EsperaFalla("No se pudo imprimir el ticket de prueba.\nNo hay impresora.");
    prueba->trigger();
}

} // namespace
} // namespace tarvo
