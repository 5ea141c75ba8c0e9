// Backup, emptying and restore on a disk that fails: killed, or refused, at every call that changes
// something.
#include "tiendacambio.h"

#include <QProcess>

namespace tarvo {
namespace {

struct Corrida {
    bool hecho = false; // it told "OK"
    bool fallo = false; // a fault was made
    bool matado = false;
    std::string texto;
};

class PruebaFallasCambio : public testing::Test {
  protected:
    void SetUp() override {
#ifdef TARVO_SANITIZADO
        GTEST_SKIP() << "the sanitizer doesn't go with a preloaded library";
#endif
    }
    Corrida Correr(const char *orden, const char *modo = "", int llamada = 0) const {
        QProcess proceso;
        QStringList entorno = QProcess::systemEnvironment();
        entorno << QStringLiteral("LD_PRELOAD=" TARVO_FALLAS)
                << QStringLiteral("FALLAS_CARPETA=") + trabajo->Carpeta()
                << QStringLiteral("FALLAS_MODO=") + QString::fromUtf8(modo)
                << QStringLiteral("FALLAS_LLAMADA=%1").arg(llamada);
        proceso.setEnvironment(entorno);
        proceso.start(QStringLiteral(TARVO_CAMBISTA), {QString::fromUtf8(orden), trabajo->Carpeta()});
        EXPECT_TRUE(proceso.waitForFinished(60'000));
        const QByteArray salida = proceso.readAllStandardOutput();
        return {salida.endsWith("OK\n"), proceso.readAllStandardError().contains("FALLA"),
                proceso.exitStatus() == QProcess::CrashExit, salida.toStdString()};
    }
    // The next start of the program opens everything; nothing of the work is left over.
    void Abrir() {
        FrmBases bases(trabajo->Ruta("Datos"), Moneda());
        EXPECT_EQ(AbrirBases(bases).estado, EstadoApertura::Completa);
        EXPECT_EQ(QDir(trabajo->Ruta("Datos")).entryList({QStringLiteral("nuevos*")}), QStringList());
    }
    // Runs `orden` with a fault at call 1, 2, ... until none is left; returns how many faults were made.
    int EnCadaLlamada(const char *orden, const char *modo,
                      const std::function<void(const Corrida &)> &mirar) {
        for (int n = 1; n < 2000; ++n) {
            SCOPED_TRACE(std::string(orden) + " " + modo + " at call " + std::to_string(n));
            trabajo = std::make_unique<TiendaCambio>();
            const Corrida corrida = Correr(orden, modo, n);
            if (!corrida.fallo) {
                EXPECT_TRUE(corrida.hecho) << corrida.texto;
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
            EXPECT_TRUE(nueva || !corrida.hecho) << "a success that is none";
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
            if (corrida.hecho) {
                EXPECT_EQ(trabajo->Marcas("copia"), "viejo viejo viejo viejo viejo");
            }
        });
        EXPECT_GT(fallas, 25) << modo;
    }
}

} // namespace
} // namespace tarvo
