// Makes a sample shop: muestra <carpeta> [articulos clientes ventas]
#include "store/errordatos.h"
#include "tienda/tienda.h"

#include <SQLiteCpp/Exception.h>

#include <QDir>
#include <QElapsedTimer>
#include <QTextStream>

using namespace tarvo;

namespace {

int Usar() {
    QTextStream(stderr)
        << "Uso: muestra <carpeta> [articulos clientes ventas]\n"
           "Crea en <carpeta> una tienda de muestra: las carpetas Datos y facturas. Sin medidas: "
        << MedidaTienda().articulos << " artículos, " << MedidaTienda().clientes << " clientes y "
        << MedidaTienda().ventas << " ventas.\n";
    return 2;
}

// False when it is no whole number from 0 up.
bool Leer(const char *texto, int &valor) {
    bool vale = false;
    valor = QString::fromLocal8Bit(texto).toInt(&vale);
    return vale && valor >= 0;
}

int Hacer(const QString &carpeta, const MedidaTienda &medida) {
    QElapsedTimer reloj;
    reloj.start();
    if (!QDir().mkpath(carpeta))
        throw ErrorDatos(errores::kAccesoRuta, QStringLiteral("No se puede crear %1.").arg(carpeta));
    const QString datos = HacerTienda(carpeta, medida, QDate::currentDate());
    QTextStream(stdout) << datos << ": " << medida.articulos << " artículos, " << medida.clientes
                        << " clientes, " << medida.ventas << " ventas en "
                        << static_cast<double>(reloj.elapsed()) / 1000.0 << " s\n";
    return 0;
}

} // namespace

int main(int argc, char **argv) {
    MedidaTienda medida;
    if ((argc != 2 && argc != 5) || argv[1][0] == '-')
        return Usar();
    if (argc == 5 &&
        !(Leer(argv[2], medida.articulos) && Leer(argv[3], medida.clientes) && Leer(argv[4], medida.ventas)))
        return Usar();
    try {
        return Hacer(QString::fromLocal8Bit(argv[1]), medida);
    } catch (const ErrorDatos &error) {
        QTextStream(stderr) << error.Descripcion() << "\n";
    } catch (const SQLite::Exception &error) {
        QTextStream(stderr) << error.what() << "\n";
    }
    return 1;
}
