// What the operator is told about a write, and whether his window goes on.
#include "desktop/almacenar.h"
#include "store/errordatos.h"
#include "testkit/datosprueba.h"
#include "testkit/preguntasguion.h"

#include <gtest/gtest.h>

namespace tarvo {
namespace {

class Almacen : public testing::Test {
  protected:
    // Stores a customer; the first of these failures are made before the write ends.
    bool Guardar(int fallas, const std::function<void()> &fallar) {
        return Almacenar(
            bases, preguntas, {QStringLiteral("Cliente")},
            [&] {
                bases.datClientes.AddNew();
                bases.camCliNombre = QStringLiteral("Ana");
                bases.datClientes.Refresh();
                if (intentos++ < fallas)
                    fallar();
            },
            QStringLiteral("Nota."));
    }

    DatosPrueba datos;
    FrmBases &bases = datos.Abrir();
    PreguntasGuion preguntas;
    int intentos = 0;
};

TEST_F(Almacen, AFaultThatPassesIsNotTold) {
    EXPECT_TRUE(Guardar(1, [] { throw ErrorDatos(errores::kEscritura, QStringLiteral("Lleno.")); }));
    EXPECT_EQ(intentos, 2);
    EXPECT_EQ(bases.datClientes.RecordCount(), 1);
}

TEST_F(Almacen, AFailureIsToldOnceAndLeavesNothing) {
    const struct {
        int numero, intentos;
        const char *dicho;
    } casos[] = {{errores::kEscritura, 2, "Falla.\n\nNota."},
                 {errores::kSinRegistro, 1, "Falla.\n\nNota."},
                 {errores::kSinComprobar, 1, "Falla."}};
    for (const auto &caso : casos) {
        intentos = 0;
        preguntas.EsperaMensaje(QString::fromUtf8(caso.dicho), Icono::Critico);
        EXPECT_FALSE(Guardar(9, [&caso] { throw ErrorDatos(caso.numero, QStringLiteral("Falla.")); }));
        EXPECT_EQ(intentos, caso.intentos);
        EXPECT_EQ(bases.datClientes.RecordCount(), 0);
    }
}

TEST_F(Almacen, AnEarlierOperationThatStandsEndsTheSameOneAndNoOther) {
    for (const bool misma : {true, false}) {
        intentos = 0;
        preguntas.EsperaMensaje(OperacionAnterior(misma).Descripcion(), Icono::Informacion);
        EXPECT_EQ(Guardar(9, [misma] { throw OperacionAnterior(misma); }), misma);
        EXPECT_EQ(intentos, 1);
        EXPECT_EQ(bases.datClientes.RecordCount(), 0);
    }
}

} // namespace
} // namespace tarvo
