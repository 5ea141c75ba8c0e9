// A program that does one thing with the data and tells how it went; the tests run it on a disk that fails.
//
//   emisor abrir CARPETA     opens the files: "estado archivo motivo"
//   emisor vender CARPETA    one sale of ten articles in one transaction: "OK" when it is on disk, "ERROR"
//                            else, and "CONSTA" with the new rows of Ventas, the changed stocks and the
//                            marked invoices that the cursors then show; after an error once more on a healed
//                            disk, "ANTERIOR" when the first one turns out to stand
//   emisor otra CARPETA      the same with a sale, but the second try is another operation: "OTRA"
//   emisor recibir CARPETA   the same with a receipt
//   emisor devolver CARPETA  the same with the return of the invoice 1, and its mark
//   emisor retener CARPETA   opens the files when a byte comes in, insisting; tells "ABIERTO" or "OCUPADO"
//                            and holds them until its input ends
//   emisor instalar CARPETA  makes `Datos` in CARPETA on a first start
#include "accounts/movimientonuevo.h"
#include "store/errordatos.h"
#include "store/instalacion.h"
#include "store/store.h"
#include "store/transaccion.h"

#include <cstdio>
#include <cstring>
#include <dlfcn.h>

namespace {

using namespace tarvo;

constexpr int kArticulos = 10;

void Decir(const QString &linea) {
    std::puts(linea.toUtf8().constData());
    std::fflush(stdout);
}

void Vender(FrmBases &bases) {
    bases.datVentas.AddNew();
    bases.camVentTipo = QStringLiteral("Contado");
    bases.camVentTotal = QStringLiteral("$ 12,50");
    bases.datVentas.Refresh();
    for (int i = 1; i <= kArticulos; ++i) {
        bases.datArticulos.Index(QStringLiteral("primarykey"));
        bases.datArticulos.Seek(QStringLiteral("="), QString::number(i));
        bases.camArtStock = QStringLiteral("vendido");
        bases.datArticulos.Refresh();
    }
}

void Recibir(FrmBases &bases) {
    EscribirRecibo(bases, QStringLiteral("1"), QStringLiteral("$ 12,50"), QDateTime::currentDateTime());
}

void Devolver(FrmBases &bases) {
    DocumentoDevuelto factura;
    factura.tipo = QStringLiteral("DevContado");
    factura.idFactura = QStringLiteral("1");
    factura.marca = QStringLiteral("Factura contado (D)");
    EscribirDevolucion(bases, factura, QDateTime::currentDateTime());
}

using Escritor = void (*)(FrmBases &);

Escritor EscritorDe(const char *orden) {
    if (std::strcmp(orden, "recibir") == 0)
        return Recibir;
    return std::strcmp(orden, "devolver") == 0 ? Devolver : Vender;
}

int Vendidos(FrmBases &bases) {
    int vendidos = 0;
    Recorrer(bases.datArticulos, [&] {
        vendidos += bases.camArtStock.Es("vendido") ? 1 : 0;
        return false;
    });
    return vendidos;
}

int Marcadas(FrmBases &bases) {
    int marcadas = 0;
    Recorrer(bases.datVentas, [&] {
        marcadas += bases.camVentDescripcion.Es("Factura contado (D)") ? 1 : 0;
        return false;
    });
    return marcadas;
}

bool Intentar(FrmBases &bases, Escritor escribir, const char *operacion) {
    try {
        Transaccion transaccion(bases, {QString::fromUtf8(operacion)});
        escribir(bases);
        transaccion.Confirmar();
        Decir(QStringLiteral("OK"));
        return true;
    } catch (const OperacionAnterior &anterior) {
        Decir(anterior.EsLaMisma() ? QStringLiteral("ANTERIOR") : QStringLiteral("OTRA"));
        return true;
    } catch (const ErrorDatos &error) {
        Decir(QStringLiteral("ERROR %1 %2").arg(error.Numero()).arg(error.Descripcion()));
        return false;
    }
}

// Without the preloaded library there is nothing to heal.
void SanarDisco() {
    if (auto *const parar = reinterpret_cast<void (*)()>(dlsym(RTLD_DEFAULT, "FallasParar")))
        parar();
}

void Contar(FrmBases &bases) {
    Decir(QStringLiteral("CONSTA %1 %2 %3")
              .arg(bases.datVentas.RecordCount() - 1)
              .arg(Vendidos(bases))
              .arg(Marcadas(bases)));
}

// Opens when the word comes, tells the state, and holds what is open until its input ends.
int Retener(FrmBases &bases) {
    std::getchar();
    const ResultadoApertura apertura = bases.AbrirInsistiendo();
    Decir(apertura.estado == EstadoApertura::Completa ? QStringLiteral("ABIERTO")
                                                      : QStringLiteral("OCUPADO"));
    std::getchar();
    return 0;
}

int ConBases(const char *orden, FrmBases &bases) {
    const ResultadoApertura apertura = bases.Abrir();
    if (std::strcmp(orden, "abrir") == 0 || apertura.estado != EstadoApertura::Completa) {
        Decir(QStringLiteral("%1 %2 %3")
                  .arg(static_cast<int>(apertura.estado))
                  .arg(apertura.archivo, apertura.motivo));
        return 0;
    }
    const Escritor escribir = EscritorDe(orden);
    const bool hecho = Intentar(bases, escribir, "primera");
    SanarDisco();
    Contar(bases);
    if (!hecho && Intentar(bases, escribir, std::strcmp(orden, "otra") == 0 ? orden : "primera"))
        Contar(bases);
    return 0;
}

} // namespace

int main(int argc, char **argv) {
    if (argc != 3)
        return 2;
    const QString carpeta = QString::fromLocal8Bit(argv[2]);
    try {
        if (std::strcmp(argv[1], "instalar") == 0) {
            PrepararDatos(carpeta, QStringLiteral("/proc/no-hay"));
            return 0;
        }
        FrmBases bases(carpeta, Moneda());
        return std::strcmp(argv[1], "retener") == 0 ? Retener(bases) : ConBases(argv[1], bases);
    } catch (const ErrorDatos &error) {
        Decir(QStringLiteral("ERROR %1").arg(error.Numero()));
        return 1;
    }
}
