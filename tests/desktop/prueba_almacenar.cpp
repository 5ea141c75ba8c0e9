// What the operator is told about a write, and whether his window goes on.
#include "desktop/almacenar.h"
#include "store/errordatos.h"
#include "testkit/datosprueba.h"
#include "testkit/preguntasguion.h"

namespace tarvo {
namespace {

class Almacen : public testing::Test {
  protected:
    // Stores a customer; the first of these failures are made before the write ends.
    bool Guardar(int fallas, const std::function<void()> &fallar) {
        return Almacenar(
            bases, preguntas, {u"Cliente"_qs},
            [&] {
                bases.datClientes.AddNew();
                bases.camCliNombre = u"Ana"_qs;
                bases.datClientes.Refresh();
                if (intentos++ < fallas)
                    fallar();
            },
            u"Nota."_qs);
    }

    DatosPrueba datos;
    FrmBases &bases = datos.Abrir();
    PreguntasGuion preguntas;
    int intentos = 0;
};

TEST_F(Almacen, AFaultThatPassesIsNotTold) {
    EXPECT_TRUE(Guardar(1, [] { throw ErrorDatos(errores::kEscritura, u"Lleno."_qs); }));
    EXPECT_EQ(intentos, 2);
    EXPECT_EQ(bases.datClientes.RecordCount(), 1);
}

TEST_F(Almacen, AFailureIsToldOnceAndLeavesNothing) {
    const std::tuple<int, int, const char *> casos[] = {{errores::kEscritura, 2, "Falla.\n\nNota."},
                                                        {errores::kSinRegistro, 1, "Falla.\n\nNota."},
                                                        {errores::kSinComprobar, 1, "Falla."}};
    for (const auto &[numero, veces, dicho] : casos) {
        intentos = 0;
        preguntas.EsperaFalla(QString::fromUtf8(dicho));
        EXPECT_FALSE(Guardar(9, [&] { throw ErrorDatos(numero, u"Falla."_qs); }));
        EXPECT_EQ(intentos, veces);
        EXPECT_EQ(bases.datClientes.RecordCount(), 0);
    }
}

TEST_F(Almacen, AnEarlierOperationThatStandsEndsTheSameOneAndNoOther) {
    const QStringList ahora{u"Venta"_qs, u"1"_qs};
    const struct {
        QStringList guardada;
        bool misma;
        const char *dicho;
    } casos[] = {{ahora, true, "No se escribió nada más"},
                 {{u"Venta"_qs, u"2"_qs}, false, "además de lo anterior"},
                 {{u"Cliente"_qs}, false, "repítala si hace falta"}};
    for (const auto &[guardada, misma, dicho] : casos) {
        intentos = 0;
        const OperacionAnterior anterior(guardada, ahora);
        EXPECT_TRUE(anterior.Descripcion().contains(QString::fromUtf8(dicho)));
        EXPECT_TRUE(
            anterior.Descripcion().startsWith(u"La operación anterior (%1),"_qs.arg(guardada.first())));
        preguntas.EsperaMensaje(anterior.Descripcion());
        EXPECT_EQ(Guardar(9, [&anterior] { throw anterior; }), misma);
        EXPECT_EQ(intentos, 1);
        EXPECT_EQ(bases.datClientes.RecordCount(), 0);
    }
}

} // namespace
} // namespace tarvo
