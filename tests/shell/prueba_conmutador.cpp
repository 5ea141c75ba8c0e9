#include "mesaprueba.h"

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
                    mesa.respuesta = Si;
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
    EXPECT_EQ(Junta(mesa.abiertas), u"proveedores");
}

TEST(Conmutador, YesUnpressesTheStatementsButtonInSomeHandlers) {
    const std::tuple<Modulo, Modulo, bool> casos[] = {
        {Ventas, Articulos, true},    {Ventas, Proveedores, true}, {Ventas, Clientes, false},
        {Estados, Proveedores, true}, {Estados, Articulos, false}, {Articulos, Proveedores, false}};
    for (const auto &[propio, abierta, suelta] : casos) {
        MesaPrueba mesa;
        mesa.Abierta(abierta, true);
        mesa.presionados += u"estado"_qs;
        mesa.respuesta = Si;
        mesa.PorTecla(propio);
        EXPECT_EQ(mesa.hechos.contains(u"-estado"_qs), suelta) << Nombre(propio);
    }
}

TEST(Conmutador, EntryOfAnUncheckedModuleDoesNotCount) {
    MesaPrueba mesa;
    mesa.conEntrada += u"ventas"_qs;
    mesa.PorClic(Articulos);
    EXPECT_TRUE(mesa.preguntadas.isEmpty());
}

TEST(Conmutador, ClosesAllInItsOrderWithoutAQuestion) {
    MesaPrueba mesa;
    for (const Modulo modulo : kModulos)
        mesa.Abierta(modulo, true);
    mesa.conmutador.CerrarModulos();
    QStringList cerradas = mesa.hechos.filter(u"cierra "_qs);
    EXPECT_EQ(cerradas.replaceInStrings(u"cierra "_qs, QString()).join(u' '),
              u"stats clientes articulos estado ventas proveedores"_qs);
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

const CasoDialogo kAbiertas[] = {
    {Ventas, "ventas", "completar la venta?"},
    {Estados, "estados de cuenta", ""},
    {Articulos, "artículos", "completar el ingreso del artículo?"},
    {Proveedores, "proveedores", "completar el ingreso del proveedor?"},
    {Clientes, "clientes", "completar el ingreso del cliente?"},
};

// A dialog of the program: the options or the backup.
struct Dialogo {
    void (Conmutador::*abrir)();
    QString hecho, boton, nombre;
};
const Dialogo kDialogos[] = {{&Conmutador::mnuOpciones, u"opciones"_qs, u"config"_qs, u"del programa"_qs},
                             {&Conmutador::mnuRespaldar, u"respaldo"_qs, u"respaldar"_qs, u"de respaldo"_qs}};

// With an entry in progress only the module's own question is asked, else only the dialog's.
void ProbarDialogo(const CasoDialogo &caso, const Dialogo &dialogo, bool entrada, Respuesta respuesta) {
    SCOPED_TRACE(Nombre(caso.abierta) + ' ' + dialogo.hecho.toStdString() + (entrada ? ", entry" : "") +
                 (respuesta == Si ? ", Yes" : ", No"));
    MesaPrueba mesa;
    mesa.Abierta(caso.abierta, entrada);
    mesa.presionados += dialogo.boton;
    mesa.respuesta = respuesta;
    (mesa.conmutador.*dialogo.abrir)();
    mesa.Tick();
    const QString aviso =
        u"Al ingresar a las opciones %1 se cerrará el formulario de %2.\nDesea continuar?"_qs.arg(
            dialogo.nombre, QString::fromUtf8(caso.formulario));
    const QString salir = u"Confirma que desea salir sin "_qs + QString::fromUtf8(caso.alSalir);
    EXPECT_EQ(mesa.preguntadas, QStringList{entrada ? salir : aviso});
    const bool abierto = mesa.hechos.contains(dialogo.hecho);
    EXPECT_EQ(abierto, respuesta == Si);
    EXPECT_TRUE(abierto ? mesa.Vacia() : mesa.SoloAbierta(caso.abierta));
    EXPECT_EQ(!abierto && entrada, !mesa.conEntrada.isEmpty());
    // The caller is gone: the handler opens and closes again.
    mesa.respuesta = Si;
    mesa.PorTecla(caso.abierta);
    EXPECT_EQ(mesa.Vacia(), !abierto);
}

TEST(ConmutadorDialogos, AskOnceAndCloseTheModuleOnYes) {
    for (const CasoDialogo &caso : kAbiertas)
        for (const Dialogo &dialogo : kDialogos)
            for (const Respuesta respuesta : {Si, No}) {
                ProbarDialogo(caso, dialogo, false, respuesta);
                if (caso.abierta != Estados)
                    ProbarDialogo(caso, dialogo, true, respuesta);
            }
}

TEST(ConmutadorDialogos, OpenAtOnceWithNoModuleOrWithStatistics) {
    for (const bool conStats : {true, false}) {
        MesaPrueba mesa;
        if (conStats)
            mesa.Abierta(Stats, false);
        for (const Dialogo &dialogo : kDialogos) {
            (mesa.conmutador.*dialogo.abrir)();
            EXPECT_TRUE(mesa.hechos.contains(dialogo.hecho));
        }
        EXPECT_TRUE(mesa.preguntadas.isEmpty());
        EXPECT_EQ(mesa.abiertas.size(), conStats ? 1 : 0);
    }
}

// A refusal leaves a button pressed beside that of the open module, before or behind it in the toolbar.
TEST(ConmutadorDialogos, CloseTheOpenModuleBesideAStrayButton) {
    for (const auto &[abierta, rechazada] :
         {std::pair(Articulos, Ventas), {Articulos, Estados}, {Proveedores, Stats}}) {
        for (const Dialogo &dialogo : kDialogos) {
            SCOPED_TRACE(Nombre(abierta) + " in progress, " + Nombre(rechazada) + " refused");
            MesaPrueba mesa;
            mesa.Abierta(abierta, true);
            mesa.PorClic(rechazada);
            mesa.Tick();
            ASSERT_EQ(mesa.presionados.size(), 2);
            for (const Respuesta respuesta : {No, Si}) {
                mesa.preguntadas.clear();
                mesa.respuesta = respuesta;
                (mesa.conmutador.*dialogo.abrir)();
                EXPECT_EQ(mesa.preguntadas, QStringList{DatosDe(abierta).alSalir});
                EXPECT_EQ(mesa.abiertas.isEmpty(), respuesta == Si);
                EXPECT_EQ(mesa.hechos.contains(dialogo.hecho), respuesta == Si);
            }
        }
    }
}

TEST(ConmutadorDialogos, DesignerIsAskedForOnceOnly) {
    MesaPrueba mesa;
    mesa.conmutador.mnuFactura();
    mesa.conmutador.mnuOpciones();
    EXPECT_EQ(mesa.hechos.filter(u"opciones"_qs), (QStringList{u"opciones y diseñador"_qs, u"opciones"_qs}));

    MesaPrueba negada;
    negada.Abierta(Ventas, true);
    negada.conmutador.mnuFactura();
    EXPECT_TRUE(negada.hechos.filter(u"opciones"_qs).isEmpty());
    EXPECT_EQ(negada.preguntadas, QStringList{DatosDe(Ventas).alSalir});
    EXPECT_TRUE(negada.SoloAbierta(Ventas));
    negada.respuesta = Si;
    negada.conmutador.mnuOpciones();
    EXPECT_EQ(negada.hechos.filter(u"opciones"_qs), QStringList{u"opciones"_qs});
}

// The suppliers' handler knows the third caller in another spelling, and so acts as if nobody had called it.
TEST(ConmutadorLlamador, OnlyAnswersWhetherTheModuleMayClose) {
    for (const Modulo modulo : kModulos) {
        SCOPED_TRACE(Nombre(modulo));
        MesaPrueba mesa;
        mesa.Abierta(modulo, false);
        mesa.conmutador.PonerLlamador(u"estadisticas"_qs);
        mesa.PorTecla(modulo);
        EXPECT_EQ(mesa.Vacia(), modulo == Proveedores);
        EXPECT_EQ(mesa.conmutador.puedeCerrar(), modulo != Proveedores);
    }
    MesaPrueba mesa;
    mesa.Abierta(Proveedores, true);
    mesa.conmutador.PonerLlamador(u"estadísticas"_qs);
    mesa.PorTecla(Proveedores);
    EXPECT_FALSE(mesa.conmutador.puedeCerrar());
    EXPECT_EQ(mesa.conmutador.botonPendiente(), Proveedores);
    EXPECT_TRUE(mesa.SoloAbierta(Proveedores));
}

TEST(ConmutadorDevoluciones, OpenTheStatementsOnlyWhenTheyAreClosed) {
    MesaPrueba mesa;
    mesa.conmutador.mnuDevContado();
    mesa.conmutador.mnuDevCliente();
    EXPECT_EQ(mesa.hechos, (QStringList{u"abre estado"_qs, u"+estado"_qs, u"contado"_qs, u"por cliente"_qs}));

    MesaPrueba negada;
    negada.Abierta(Ventas, true);
    negada.conmutador.mnuDevContado();
    EXPECT_FALSE(negada.hechos.contains(u"contado"_qs));
    EXPECT_EQ(Junta(negada.abiertas), u"ventas");
}

TEST(ConmutadorCalculadora, TogglesBesideAnyModule) {
    MesaPrueba mesa;
    mesa.Abierta(Ventas, true);
    mesa.conmutador.mnuCalc();
    EXPECT_EQ(Junta(mesa.marcadas), u"calculadora ventas");
    EXPECT_EQ(Junta(mesa.presionados), u"calculadora ventas");
    mesa.conmutador.mnuCalc();
    EXPECT_TRUE(mesa.SoloAbierta(Ventas));
    mesa.conmutador.mnuCalc();
    mesa.conmutador.CalculadoraCerrada(); // closed by its own means
    EXPECT_TRUE(mesa.SoloAbierta(Ventas));
    EXPECT_EQ(mesa.hechos.count(u"cierra calculadora"_qs), 1);
    EXPECT_TRUE(mesa.preguntadas.isEmpty());
}

} // namespace
} // namespace tarvo
