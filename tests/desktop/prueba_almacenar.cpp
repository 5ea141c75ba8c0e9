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
    const QStringList ahora{QStringLiteral("Venta"), QStringLiteral("1")};
    const struct {
        QStringList guardada;
        bool misma;
        const char *dicho;
    } casos[] = {{ahora, true, "No se escribió nada más"},
                 {{QStringLiteral("Venta"), QStringLiteral("2")}, false, "además de lo anterior"},
                 {{QStringLiteral("Cliente")}, false, "repítala si hace falta"}};
    for (const auto &[guardada, misma, dicho] : casos) {
        intentos = 0;
        const OperacionAnterior anterior(guardada, ahora);
        EXPECT_TRUE(anterior.Descripcion().contains(QString::fromUtf8(dicho)));
        EXPECT_TRUE(anterior.Descripcion().startsWith(
            QStringLiteral("La operación anterior (%1),").arg(guardada.first())));
        preguntas.EsperaMensaje(anterior.Descripcion(), Icono::Informacion);
        EXPECT_EQ(Guardar(9, [&anterior] { throw anterior; }), misma);
        EXPECT_EQ(intentos, 1);
        EXPECT_EQ(bases.datClientes.RecordCount(), 0);
    }
}

} // namespace
} // namespace tarvo
