// A program that backs up and restores and tells how it went; the tests run it on a disk that fails.
//
//   cambista respaldar CARPETA   copies the five files of CARPETA/Datos to CARPETA/copia and empties sales
//   and
//                                articles: "OK" or "ERROR"
//   cambista recuperar CARPETA   the five files of CARPETA/respaldo come back: "OK" or "ERROR"
//   cambista abrir CARPETA       opens the data as a start of the program does: its state
#include "interchange/avance.h"
#include "interchange/reemplazo.h"
#include "interchange/respaldo.h"
#include "store/errordatos.h"
#include "store/store.h"

#include <cstdio>
#include <cstring>

namespace {

using namespace tarvo;

class SinAvance final : public Avance {
  public:
    bool Sigue() override { return true; }
    void Empieza(const QString &, qint64) override {}
    void Hecho(qint64) override {}
    void Avanza() override {}
};

constexpr Elegidas kTodas{true, true, true, true, true};
constexpr Elegidas kVentasYArticulos{false, true, true, false, false};

void Hacer(const char *orden, const QString &carpeta, FrmBases &bases) {
    SinAvance avance;
    Elegidas vaciadas{};
    if (std::strcmp(orden, "respaldar") == 0)
        Respaldar(bases, {carpeta + u"/copia"_qs, kTodas, kVentasYArticulos}, avance, vaciadas);
    else if (std::strcmp(orden, "recuperar") == 0)
        Recuperar(bases, {carpeta + u"/respaldo"_qs, kTodas}, avance);
    else
        std::printf("%d\n", static_cast<int>(AbrirBases(bases).estado));
}

} // namespace

int main(int argc, char **argv) {
    if (argc != 3)
        return 2;
    const QString carpeta = QString::fromLocal8Bit(argv[2]);
    try {
        FrmBases bases(carpeta + u"/Datos"_qs, Moneda());
        Hacer(argv[1], carpeta, bases);
        std::puts("OK");
        return 0;
    } catch (const ErrorDatos &error) {
        std::printf("ERROR %s\n", error.what());
        return 1;
    }
}
