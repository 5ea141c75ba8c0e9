// Backup, emptying and restore on a disk that fails: killed, or refused, at every call that changes
// something.
#include "fallas/confallas.h"
#include "tiendacambio.h"

namespace tarvo {
namespace {

class PruebaFallasCambio : public ConFallas {
  protected:
    Corrida Correr(const char *orden, const char *modo, int llamada) const {
        return ConFallas::Correr(QStringLiteral(TARVO_CAMBISTA), orden, trabajo->Carpeta(), modo, llamada);
    }
    // The next start of the program opens everything; nothing of the work is left over.
    void Abrir() {
        FrmBases bases(trabajo->Ruta("Datos"), Moneda());
        EXPECT_EQ(AbrirBases(bases).estado, EstadoApertura::Completa);
        EXPECT_EQ(QDir(trabajo->Ruta("Datos")).entryList({u"nuevos*"_qs}), QStringList());
    }
    // Runs `orden` with a fault at call 1, 2, ... until none is left; returns how many faults were made.
    int EnCadaLlamada(const char *orden, const char *modo,
                      const std::function<void(const Corrida &)> &mirar) {
        for (int n = 1; n < 2000; ++n) {
            SCOPED_TRACE(std::string(orden) + " " + modo + " at call " + std::to_string(n));
            trabajo = std::make_unique<TiendaCambio>();
            const Corrida corrida = Correr(orden, modo, n);
            if (!corrida.fallo) {
                EXPECT_TRUE(corrida.Hecho()) << corrida.Texto();
                RecordProperty(std::string(orden) + '-' + modo, n - 1);
                return n - 1;
            }
            mirar(corrida);
        }
        ADD_FAILURE() << "no end";
        return 0;
    }

    std::unique_ptr<TiendaCambio> trabajo;
};

TEST_F(PruebaFallasCambio, ARestoreIsWholeOrNotThere) {
    int nuevas = 0;
    for (const char *modo : {"cortar", "entrada"}) {
        const int fallas = EnCadaLlamada("recuperar", modo, [&](const Corrida &corrida) {
            Abrir();
            const std::string marcas = trabajo->Marcas("Datos");
            const bool nueva = marcas == "nuevo nuevo nuevo nuevo nuevo";
            EXPECT_TRUE(nueva || marcas == "viejo viejo viejo viejo viejo") << marcas;
            EXPECT_TRUE(nueva || !corrida.Hecho()) << "a success that is none";
            nuevas += nueva ? 1 : 0;
        });
        EXPECT_GT(fallas, 25) << modo;
    }
    EXPECT_GT(nuevas, 8) << "none was finished by the next start";
}

TEST_F(PruebaFallasCambio, AStartThatIsKilledWhileItFinishesARestore) {
    EnCadaLlamada("recuperar", "matar", [&](const Corrida &) {
        for (int m = 1; Correr("abrir", "matar", m).fallo; ++m)
            ASSERT_LT(m, 200);
        Abrir();
        const std::string marcas = trabajo->Marcas("Datos");
        EXPECT_TRUE(marcas == "nuevo nuevo nuevo nuevo nuevo" || marcas == "viejo viejo viejo viejo viejo")
            << marcas;
    });
}

// A file is emptied only when its copy is whole; a backup that is told as made is whole.
TEST_F(PruebaFallasCambio, ABackupLosesNothing) {
    for (const char *modo : {"cortar", "lleno"}) {
        const int fallas = EnCadaLlamada("respaldar", modo, [&](const Corrida &corrida) {
            Abrir();
            for (std::size_t i = 0; i < kBases; ++i) {
                const std::string viva = trabajo->Marca("Datos", i);
                EXPECT_EQ(viva == "-" ? trabajo->Marca("copia", i) : viva, "viejo")
                    << "emptied without a copy";
            }
            if (corrida.Hecho()) {
                EXPECT_EQ(trabajo->Marcas("copia"), "viejo viejo viejo viejo viejo");
            }
        });
        EXPECT_GT(fallas, 25) << modo;
    }
}

} // namespace
} // namespace tarvo
