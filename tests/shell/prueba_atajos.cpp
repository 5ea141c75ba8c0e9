#include "desktop/ventanas/listavista.h"
#include "shell/atajos.h"
#include "shell/ventanas/frmatajos.h"
#include "testkit/archivos.h"
#include "testkit/manos.h"
#include "testkit/preguntasguion.h"

#include <QBuffer>
#include <QKeySequenceEdit>

namespace tarvo {
namespace {

QKeySequence Tecla(const char *texto) {
    return QKeySequence(QString::fromLatin1(texto), QKeySequence::PortableText);
}

Atajos Leidos(QByteArray archivo) {
    Atajos atajos;
    QBuffer origen(&archivo);
    origen.open(QIODevice::ReadOnly);
    atajos.Leer(origen);
    return atajos;
}

// Texts with a "|" behind each, as a file.
QByteArray Archivo(const char *fichas) {
    return QByteArray(fichas).replace('|', '\0');
}
const QByteArray kCabeza = Archivo("|[Nerlo-Menus-Shortcuts]|[V-1-0-0]|");

TEST(Atajos, WritesItsFile) {
    Atajos atajos;
    atajos.Poner(Entrada::Ventas, Tecla("Ctrl+L"));
    const QByteArray archivo = atajos.Archivo();
    EXPECT_TRUE(archivo.startsWith(kCabeza + Archivo("I|1|exportar|K|Ctrl+F6|exportar|")));
    EXPECT_TRUE(archivo.contains(Archivo("|ventas|K|Ctrl+L|ventas|")));
    EXPECT_FALSE(archivo.contains("factura")); // it has no key
    EXPECT_EQ(Leidos(archivo), atajos);
}

TEST(Atajos, ReadsUpToWhatIsWrong) {
    const Atajos iniciales;
    const struct {
        const char *grupos;
        const char *ventas;   // its key afterwards
        const char *clientes; // likewise
    } casos[] = {
        {"K|Ctrl+L|ventas|K|Ctrl+F|clientes|", "Ctrl+L", "Ctrl+F"},
        {"K|Ctrl+L|ventas|X|Ctrl+2|clientes|", "Ctrl+L", "F4"},
        {"K|Ctrl+L|ventas|K|Ctrl+F", "Ctrl+L", "F4"},
        {"K|Ctrl+L|nadie|K|Ctrl+F|clientes|", "F8", "Ctrl+F"},
        {"I|5|ventas|I|9|clientes|", "F8", "F4"},
        {"K|A|ventas|K|Ctrl+C|clientes|", "F8", "F4"},                 // they write and edit text
        {"K|Ctrl+D|ventas|K|Ctrl+U|clientes|", "F8", "F4"},            // as these do
        {"K|F4|ventas|K|F8|clientes|", "F4", "F8"},                    // two that change places
        {"K|A|factura|K|B|acercade|K|Ctrl+L|ventas|", "Ctrl+L", "F4"}, // entries that start without a key
        {"K|F4|ventas|", "F8", "F4"},                                  // shared: nothing counts
        {"K|Ctrl+L, Ctrl+F|ventas|", "F8", "F4"},
        {"", "F8", "F4"},
    };
    for (const auto &caso : casos) {
        const Atajos leidos = Leidos(kCabeza + Archivo(caso.grupos));
        EXPECT_EQ(leidos.De(Entrada::Ventas), Tecla(caso.ventas)) << caso.grupos;
        EXPECT_EQ(leidos.De(Entrada::Clientes), Tecla(caso.clientes)) << caso.grupos;
    }
    for (const char *cabeza :
         {"", "|[Nerlo-Menus-Shortcuts]|[V-2-0-0]|", "[Nerlo-Menus-Shortcuts]|[V-1-0-0]|"})
        EXPECT_EQ(Leidos(Archivo(cabeza) + Archivo("K|Ctrl+L|ventas|")), iniciales) << cabeza;
}

TEST(Atajos, AnyBytesLeaveOneKeyForEachEntry) {
    const QByteArray entero = Atajos().Archivo();
    std::mt19937 azar(20261122);
    for (int vuelta = 0; vuelta < kEstropeados; ++vuelta) {
        const Atajos leidos = Leidos(Estropeado(entero, azar));
        QSet<QString> teclas;
        for (const Entrada entrada : Atajos::Asignables()) {
            const QString tecla = leidos.De(entrada).toString();
            ASSERT_FALSE(!tecla.isEmpty() && teclas.contains(tecla)) << vuelta;
            ASSERT_EQ(tecla.isEmpty(), Atajos::Inicial(entrada).isEmpty() && tecla.isEmpty()) << vuelta;
            teclas.insert(tecla);
        }
    }
}

TEST(Atajos, RefusesKeysThatAreTakenOrWriteText) {
    const Atajos atajos;
    for (const char *tecla : {"F8", "Ctrl+L", "Ctrl+Shift+M", "Shift+F3", "Ctrl+F2"})
        EXPECT_EQ(atajos.MotivoRechazo(Entrada::Ventas, Tecla(tecla)), QString()) << tecla;
    for (const char *tecla :
         {"A",     "1",          "Shift+B", "Ctrl+V",    "Ctrl+Z",         "Ctrl+N", "Ctrl+K",
          "Alt+V", "Ctrl+Alt+2", "F10",     "Alt+F2",    "Meta+F2",        "Return", "Esc",
          "Tab",   "Del",        "Left",    "Ctrl+Left", "Ctrl+L, Ctrl+F", "Ctrl+2", ""})
        EXPECT_NE(atajos.MotivoRechazo(Entrada::Ventas, Tecla(tecla)), QString()) << tecla;
    EXPECT_EQ(atajos.MotivoRechazo(Entrada::Ventas, Tecla("F4")),
              u"La tecla F4 ya es la de \"Clientes\"."_qs);
}

TEST(FrmAtajos, AssignsTellsAndRestores) {
    Atajos atajos;
    PreguntasGuion preguntas;
    int cambios = 0;
    FrmAtajos frm(
        atajos, preguntas, [&cambios] { ++cambios; }, nullptr);
    MostrarVentana(frm);
    auto *const lista = Control<ListaVista>(frm, "LVAtajos");
    auto *const tecla = Control<QKeySequenceEdit>(frm, "kseTecla");
    const auto asignar = [&](const char *entrada, const char *texto) {
        lista->SeleccionarFila(lista->Lista()->Buscar(2, entrada));
        tecla->setKeySequence(Tecla(texto));
        Pulsar(Control<QWidget>(frm, "cmdAsignar"));
    };
    preguntas.EsperaMensaje(u"La tecla F7 ya es la de \"Estados de cuenta\"."_qs);
    asignar("ventas", "F7");
    EXPECT_EQ(tecla->keySequence(), Tecla("F8"));
    EXPECT_EQ(cambios, 0);

    asignar("ventas", "Ctrl+L");
    EXPECT_EQ(atajos.De(Entrada::Ventas), Tecla("Ctrl+L"));
    EXPECT_EQ(lista->Lista()->Celda(lista->FilaActual(), 1), u"Ctrl+L");
    asignar("factura", "Ctrl+M"); // it starts without a key
    EXPECT_EQ(atajos.De(Entrada::Factura), Tecla("Ctrl+M"));
    for (const Respuesta respuesta : {No, Si}) {
        atajos.Poner(Entrada::Factura, Tecla("Ctrl+M"));
        preguntas.Espera(u"Está seguro de querer restablecer todas las teclas?"_qs, No, respuesta);
        Pulsar(Control<QWidget>(frm, "cmdRestablecerTodo"));
        EXPECT_EQ(atajos == Atajos(), respuesta == Si);
    }
    tecla->setFocus();
    QTest::keyClick(tecla, Qt::Key_F2, Qt::ShiftModifier);
    QTest::keyClick(tecla, Qt::Key_Return); // assigns, and is no second stroke
    EXPECT_EQ(atajos.De(Entrada::Factura), Tecla("Shift+F2"));
    for (const char *entrada : {"ventas", "factura"}) {
        lista->SeleccionarFila(lista->Lista()->Buscar(2, entrada));
        Pulsar(Control<QWidget>(frm, "cmdRestablecer"));
    }
    EXPECT_EQ(atajos, Atajos());
    EXPECT_EQ(cambios, 6);
}

} // namespace
} // namespace tarvo
