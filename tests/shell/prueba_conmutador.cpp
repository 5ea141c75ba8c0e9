#include "mesaprueba.h"

#include <gtest/gtest.h>

namespace tarvo {
namespace {

using enum Modulo;

std::string Nombre(Modulo modulo) {
    return Boton(modulo).toStdString();
}

// Every module open without an entry (or none) x every handler x click or key: no question is asked. With an
// entry that is given up there is one, and the handler's module is the one open.
TEST(Conmutador, SwitchesFreelyWithoutAnEntryAndAfterYes) {
    for (const bool clic : {true, false}) {
        for (const Modulo propio : kModulos) {
            for (const Modulo abierta : kModulos) {
                for (const bool entrada : {false, true}) {
                    if (entrada && (abierta == Estados || abierta == Stats))
                        continue;
                    SCOPED_TRACE(Nombre(abierta) + (entrada ? " in progress, " : " open, ") + Nombre(propio));
                    MesaPrueba mesa;
                    mesa.Abierta(abierta, entrada);
                    mesa.respuesta = Respuesta::Si;
                    clic ? mesa.PorClic(propio) : mesa.PorTecla(propio);
                    mesa.Tick();
                    EXPECT_EQ(mesa.preguntadas,
                              entrada ? QStringList{DatosDe(abierta).alSalir} : QStringList());
                    EXPECT_TRUE(abierta == propio ? mesa.Vacia() : mesa.SoloAbierta(propio));
                    EXPECT_FALSE(mesa.conmutador.puedeCerrar());
                }
            }
            MesaPrueba mesa;
            clic ? mesa.PorClic(propio) : mesa.PorTecla(propio);
            EXPECT_TRUE(mesa.SoloAbierta(propio)) << Nombre(propio);
        }
    }
}

struct CasoNo {
    Modulo propio;
    Modulo abierta;
    const char *trasClic; // buttons pressed when the click's handler has ended
    const char *trasTick; // ... and one tick later
    const char *porTecla; // ... one tick after the handler ran by its key
};

// The same answered No. Where two buttons end up pressed, that is how the program behaves.
constexpr CasoNo kCasosNo[] = {
    {Ventas, Ventas, "", "ventas", "ventas"},
    {Ventas, Articulos, "articulos", "articulos ventas", "articulos ventas"},
    {Ventas, Proveedores, "proveedores", "proveedores", "proveedores"},
    {Ventas, Clientes, "clientes", "clientes", "clientes"},
    {Articulos, Articulos, "", "articulos", "articulos"},
    {Articulos, Ventas, "ventas", "ventas", "ventas"},
    {Articulos, Clientes, "clientes", "clientes", "clientes"},
    {Articulos, Proveedores, "proveedores", "proveedores", "proveedores"},
    {Clientes, Clientes, "", "clientes", "clientes"},
    {Clientes, Ventas, "ventas", "ventas", "ventas"},
    {Clientes, Articulos, "articulos", "articulos", "articulos"},
    {Clientes, Proveedores, "clientes proveedores", "clientes proveedores", "proveedores"},
    {Proveedores, Proveedores, "", "proveedores", "proveedores"},
    {Proveedores, Ventas, "ventas", "ventas", "ventas"},
    {Proveedores, Articulos, "articulos", "articulos", "articulos"},
    {Proveedores, Clientes, "clientes", "clientes", "clientes"},
    {Estados, Ventas, "ventas", "ventas", "ventas"},
    {Estados, Articulos, "articulos", "articulos clientes", "articulos clientes"},
    {Estados, Proveedores, "proveedores", "proveedores", "proveedores"},
    {Estados, Clientes, "clientes", "clientes", "clientes"},
    {Stats, Ventas, "ventas", "ventas", "ventas"},
    {Stats, Articulos, "articulos", "articulos", "articulos"},
    {Stats, Proveedores, "proveedores", "proveedores ventas", "proveedores ventas"},
    {Stats, Clientes, "clientes", "clientes", "clientes"},
};

TEST(Conmutador, NoKeepsTheEntryAndPutsTheToolbarBack) {
    for (const CasoNo &caso : kCasosNo) {
        for (const bool clic : {true, false}) {
            SCOPED_TRACE(Nombre(caso.abierta) + " in progress, " + Nombre(caso.propio));
            MesaPrueba mesa;
            mesa.Abierta(caso.abierta, true);
            clic ? mesa.PorClic(caso.propio) : mesa.PorTecla(caso.propio);
            EXPECT_EQ(mesa.preguntadas, QStringList{DatosDe(caso.abierta).alSalir});
            if (clic) {
                EXPECT_EQ(Junta(mesa.presionados), QLatin1String(caso.trasClic));
            }
            mesa.Tick();
            EXPECT_EQ(Junta(mesa.presionados), QLatin1String(clic ? caso.trasTick : caso.porTecla));
            EXPECT_FALSE(mesa.conmutador.botonPendiente());
            EXPECT_EQ(Junta(mesa.marcadas), Clave(caso.abierta));
            EXPECT_EQ(mesa.abiertas, mesa.conEntrada);
        }
    }
}

// A customer refused while a supplier is typed leaves two buttons pressed; the supplier is still asked about.
TEST(Conmutador, StrayButtonDoesNotLoseAnEntry) {
    MesaPrueba mesa;
    mesa.Abierta(Proveedores, true);
    mesa.PorClic(Clientes);
    mesa.Tick();
    mesa.PorClic(Proveedores);
    EXPECT_EQ(mesa.preguntadas.size(), 2);
    EXPECT_EQ(Junta(mesa.abiertas), QStringLiteral("proveedores"));
}

TEST(Conmutador, YesUnpressesTheStatementsButtonInSomeHandlers) {
    const auto trasSi = [](Modulo propio, Modulo abierta) {
        MesaPrueba mesa;
        mesa.Abierta(abierta, true);
        mesa.presionados += QStringLiteral("estado");
        mesa.respuesta = Respuesta::Si;
        mesa.PorTecla(propio);
        return mesa.hechos.contains(QStringLiteral("-estado"));
    };
    EXPECT_TRUE(trasSi(Ventas, Articulos));
    EXPECT_TRUE(trasSi(Ventas, Proveedores));
    EXPECT_FALSE(trasSi(Ventas, Clientes));
    EXPECT_TRUE(trasSi(Estados, Proveedores));
    EXPECT_FALSE(trasSi(Estados, Articulos));
    EXPECT_FALSE(trasSi(Articulos, Proveedores));
}

TEST(Conmutador, EntryOfAnUncheckedModuleDoesNotCount) {
    MesaPrueba mesa;
    mesa.conEntrada += QStringLiteral("ventas");
    mesa.PorClic(Articulos);
    EXPECT_TRUE(mesa.preguntadas.isEmpty());
}

TEST(Conmutador, ClosesAllInItsOrderWithoutAQuestion) {
    MesaPrueba mesa;
    for (const Modulo modulo : kModulos)
        mesa.Abierta(modulo, true);
    mesa.conmutador.CerrarModulos();
    QStringList cerradas = mesa.hechos.filter(QStringLiteral("cierra "));
    EXPECT_EQ(cerradas.replaceInStrings(QStringLiteral("cierra "), QString()).join(QLatin1Char(' ')),
              QStringLiteral("stats clientes articulos estado ventas proveedores"));
    EXPECT_TRUE(mesa.Vacia());
    EXPECT_TRUE(mesa.preguntadas.isEmpty());
}

TEST(Conmutador, WindowThatFailsToOpenLeavesNothingChecked) {
    MesaPrueba mesa;
    mesa.fallaMostrar = true;
    EXPECT_THROW(mesa.PorClic(Ventas), std::runtime_error);
    EXPECT_TRUE(mesa.Vacia());
}

struct CasoDialogo {
    Modulo abierta;
    const char *formulario; // what the dialogs' questions call it
    const char *alSalir;
};

const CasoDialogo kDialogos[] = {
    {Ventas, "ventas", "completar la venta?"},
    {Estados, "estados de cuenta", ""},
    {Articulos, "artículos", "completar el ingreso del artículo?"},
    {Proveedores, "proveedores", "completar el ingreso del proveedor?"},
    {Clientes, "clientes", "completar el ingreso del cliente?"},
};

// With an entry in progress only the module's own question is asked, else only the dialog's.
TEST(ConmutadorDialogos, AskOnceAndCloseTheModuleOnYes) {
    for (const CasoDialogo &caso : kDialogos) {
        for (const bool opciones : {true, false}) {
            for (const bool entrada : {true, false}) {
                if (entrada && caso.abierta == Estados)
                    continue;
                for (const Respuesta respuesta : {Respuesta::Si, Respuesta::No}) {
                    SCOPED_TRACE(Nombre(caso.abierta) + (opciones ? ", options" : ", backup") +
                                 (entrada ? ", entry" : "") +
                                 (respuesta == Respuesta::Si ? ", Yes" : ", No"));
                    MesaPrueba mesa;
                    mesa.Abierta(caso.abierta, entrada);
                    mesa.presionados += opciones ? QStringLiteral("config") : QStringLiteral("respaldar");
                    mesa.respuesta = respuesta;
                    opciones ? mesa.conmutador.mnuOpciones() : mesa.conmutador.mnuRespaldar();
                    mesa.Tick();
                    const QString aviso =
                        QStringLiteral("Al ingresar a las opciones %1 se cerrará el formulario de %2.\n"
                                       "Desea continuar?")
                            .arg(opciones ? QStringLiteral("del programa") : QStringLiteral("de respaldo"),
                                 QString::fromUtf8(caso.formulario));
                    const QString salir =
                        QStringLiteral("Confirma que desea salir sin ") + QString::fromUtf8(caso.alSalir);
                    EXPECT_EQ(mesa.preguntadas, QStringList{entrada ? salir : aviso});
                    const bool abierto = mesa.hechos.contains(opciones ? QStringLiteral("opciones")
                                                                       : QStringLiteral("respaldo"));
                    EXPECT_EQ(abierto, respuesta == Respuesta::Si);
                    EXPECT_TRUE(abierto ? mesa.Vacia() : mesa.SoloAbierta(caso.abierta));
                    EXPECT_EQ(!abierto && entrada, !mesa.conEntrada.isEmpty());
                    // The caller is gone: the handler opens and closes again.
                    mesa.respuesta = Respuesta::Si;
                    mesa.PorTecla(caso.abierta);
                    EXPECT_EQ(mesa.Vacia(), !abierto);
                }
            }
        }
    }
}

TEST(ConmutadorDialogos, OpenAtOnceWithNoModuleOrWithStatistics) {
    for (const bool conStats : {true, false}) {
        MesaPrueba mesa;
        if (conStats)
            mesa.Abierta(Stats, false);
        mesa.conmutador.mnuOpciones();
        mesa.conmutador.mnuRespaldar();
        EXPECT_TRUE(mesa.preguntadas.isEmpty());
        EXPECT_TRUE(mesa.hechos.contains(QStringLiteral("opciones")));
        EXPECT_TRUE(mesa.hechos.contains(QStringLiteral("respaldo")));
        EXPECT_EQ(mesa.abiertas.size(), conStats ? 1 : 0);
    }
}

// A refusal leaves a button pressed beside that of the open module, before or behind it in the toolbar.
TEST(ConmutadorDialogos, CloseTheOpenModuleBesideAStrayButton) {
    struct Caso {
        Modulo abierta;
        Modulo rechazada;
    };
    for (const Caso &caso : {Caso{Articulos, Ventas}, {Articulos, Estados}, {Proveedores, Stats}}) {
        for (const bool opciones : {true, false}) {
            SCOPED_TRACE(Nombre(caso.abierta) + " in progress, " + Nombre(caso.rechazada) + " refused");
            MesaPrueba mesa;
            mesa.Abierta(caso.abierta, true);
            mesa.PorClic(caso.rechazada);
            mesa.Tick();
            ASSERT_EQ(mesa.presionados.size(), 2);
            for (const Respuesta respuesta : {Respuesta::No, Respuesta::Si}) {
                mesa.preguntadas.clear();
                mesa.respuesta = respuesta;
                opciones ? mesa.conmutador.mnuOpciones() : mesa.conmutador.mnuRespaldar();
                EXPECT_EQ(mesa.preguntadas, QStringList{DatosDe(caso.abierta).alSalir});
                EXPECT_EQ(mesa.abiertas.isEmpty(), respuesta == Respuesta::Si);
                EXPECT_EQ(
                    mesa.hechos.contains(opciones ? QStringLiteral("opciones") : QStringLiteral("respaldo")),
                    respuesta == Respuesta::Si);
            }
        }
    }
}

TEST(ConmutadorDialogos, DesignerIsAskedForOnceOnly) {
    MesaPrueba mesa;
    mesa.conmutador.mnuFactura();
    mesa.conmutador.mnuOpciones();
    EXPECT_EQ(mesa.hechos.filter(QStringLiteral("opciones")),
              (QStringList{QStringLiteral("opciones y diseñador"), QStringLiteral("opciones")}));

    MesaPrueba negada;
    negada.Abierta(Ventas, true);
    negada.conmutador.mnuFactura();
    EXPECT_TRUE(negada.hechos.filter(QStringLiteral("opciones")).isEmpty());
    EXPECT_EQ(negada.preguntadas, QStringList{DatosDe(Ventas).alSalir});
    EXPECT_TRUE(negada.SoloAbierta(Ventas));
    negada.respuesta = Respuesta::Si;
    negada.conmutador.mnuOpciones();
    EXPECT_EQ(negada.hechos.filter(QStringLiteral("opciones")), QStringList{QStringLiteral("opciones")});
}

// The suppliers' handler knows the third caller in another spelling, and so acts as if nobody had called it.
TEST(ConmutadorLlamador, OnlyAnswersWhetherTheModuleMayClose) {
    for (const Modulo modulo : kModulos) {
        SCOPED_TRACE(Nombre(modulo));
        MesaPrueba mesa;
        mesa.Abierta(modulo, false);
        mesa.conmutador.PonerLlamador(QStringLiteral("estadisticas"));
        mesa.PorTecla(modulo);
        EXPECT_EQ(mesa.Vacia(), modulo == Proveedores);
        EXPECT_EQ(mesa.conmutador.puedeCerrar(), modulo != Proveedores);
    }
    MesaPrueba mesa;
    mesa.Abierta(Proveedores, true);
    mesa.conmutador.PonerLlamador(QStringLiteral("estadísticas"));
    mesa.PorTecla(Proveedores);
    EXPECT_FALSE(mesa.conmutador.puedeCerrar());
    EXPECT_EQ(mesa.conmutador.botonPendiente(), Proveedores);
    EXPECT_TRUE(mesa.SoloAbierta(Proveedores));
}

TEST(ConmutadorDevoluciones, OpenTheStatementsOnlyWhenTheyAreClosed) {
    MesaPrueba mesa;
    mesa.conmutador.mnuDevContado();
    mesa.conmutador.mnuDevCliente();
    EXPECT_EQ(mesa.hechos, (QStringList{QStringLiteral("abre estado"), QStringLiteral("+estado"),
                                        QStringLiteral("contado"), QStringLiteral("por cliente")}));

    MesaPrueba negada;
    negada.Abierta(Ventas, true);
    negada.conmutador.mnuDevContado();
    EXPECT_FALSE(negada.hechos.contains(QStringLiteral("contado")));
    EXPECT_EQ(Junta(negada.abiertas), QStringLiteral("ventas"));
}

TEST(ConmutadorCalculadora, TogglesBesideAnyModule) {
    MesaPrueba mesa;
    mesa.Abierta(Ventas, true);
    mesa.conmutador.mnuCalc();
    EXPECT_EQ(Junta(mesa.marcadas), QStringLiteral("calculadora ventas"));
    EXPECT_EQ(Junta(mesa.presionados), QStringLiteral("calculadora ventas"));
    mesa.conmutador.mnuCalc();
    EXPECT_TRUE(mesa.SoloAbierta(Ventas));
    mesa.conmutador.mnuCalc();
    mesa.conmutador.CalculadoraCerrada(); // closed by its own means
    EXPECT_TRUE(mesa.SoloAbierta(Ventas));
    EXPECT_EQ(mesa.hechos.count(QStringLiteral("cierra calculadora")), 1);
    EXPECT_TRUE(mesa.preguntadas.isEmpty());
}

} // namespace
} // namespace tarvo
