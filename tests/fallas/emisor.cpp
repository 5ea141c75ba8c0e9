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
    bases.camVentTipo = u"Contado"_qs;
    bases.camVentTotal = u"$ 12,50"_qs;
    bases.datVentas.Refresh();
    for (int i = 1; i <= kArticulos; ++i) {
        bases.datArticulos.Index(u"primarykey"_qs);
        bases.datArticulos.Seek(u"="_qs, QString::number(i));
        bases.camArtStock = u"vendido"_qs;
        bases.datArticulos.Refresh();
    }
}

void Recibir(FrmBases &bases) {
    EscribirRecibo(bases, u"1"_qs, u"$ 12,50"_qs, QDateTime::currentDateTime());
}

void Devolver(FrmBases &bases) {
    DocumentoDevuelto factura;
    factura.tipo = u"DevContado"_qs;
    factura.idFactura = u"1"_qs;
    factura.marca = u"Factura contado (D)"_qs;
    EscribirDevolucion(bases, factura, QDateTime::currentDateTime());
}

using Escritor = void (*)(FrmBases &);

Escritor EscritorDe(const char *orden) {
    if (std::strcmp(orden, "recibir") == 0)
        return Recibir;
    return std::strcmp(orden, "devolver") == 0 ? Devolver : Vender;
}

int Cuantas(Cursor &cursor, const Campo &campo, const char *texto) {
    int cuantas = 0;
    Recorrer(cursor, [&] {
        cuantas += campo.Es(texto) ? 1 : 0;
        return false;
    });
    return cuantas;
}

bool Intentar(FrmBases &bases, Escritor escribir, const char *operacion) {
    try {
        Transaccion transaccion(bases, {QString::fromUtf8(operacion)});
        escribir(bases);
        transaccion.Confirmar();
        Decir(u"OK"_qs);
        return true;
    } catch (const OperacionAnterior &anterior) {
        Decir(anterior.EsLaMisma() ? u"ANTERIOR"_qs : u"OTRA"_qs);
        return true;
    } catch (const ErrorDatos &error) {
        Decir(u"ERROR %1 %2"_qs.arg(error.Numero()).arg(error.Descripcion()));
        return false;
    }
}

// Without the preloaded library there is nothing to heal.
void SanarDisco() {
    if (auto *const parar = reinterpret_cast<void (*)()>(dlsym(RTLD_DEFAULT, "FallasParar")))
        parar();
}

void Contar(FrmBases &bases) {
    Decir(u"CONSTA %1 %2 %3"_qs.arg(bases.datVentas.RecordCount() - 1)
              .arg(Cuantas(bases.datArticulos, bases.camArtStock, "vendido"))
              .arg(Cuantas(bases.datVentas, bases.camVentDescripcion, "Factura contado (D)")));
}

// Opens when the word comes, tells the state, and holds what is open until its input ends.
int Retener(FrmBases &bases) {
    std::getchar();
    const ResultadoApertura apertura = bases.AbrirInsistiendo();
    Decir(apertura.estado == EstadoApertura::Completa ? u"ABIERTO"_qs : u"OCUPADO"_qs);
    std::getchar();
    return 0;
}

int ConBases(const char *orden, FrmBases &bases) {
    const ResultadoApertura apertura = bases.Abrir();
    if (std::strcmp(orden, "abrir") == 0 || apertura.estado != EstadoApertura::Completa) {
        Decir(u"%1 %2 %3"_qs.arg(static_cast<int>(apertura.estado)).arg(apertura.archivo, apertura.motivo));
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
            PrepararDatos(carpeta, u"/proc/no-hay"_qs);
            return 0;
        }
        FrmBases bases(carpeta, Moneda());
        return std::strcmp(argv[1], "retener") == 0 ? Retener(bases) : ConBases(argv[1], bases);
    } catch (const ErrorDatos &error) {
        Decir(u"ERROR %1"_qs.arg(error.Numero()));
        return 1;
    }
}
