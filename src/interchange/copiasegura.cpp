#include "interchange/copiasegura.h"

#include "interchange/archivos.h"
#include "interchange/avance.h"
#include "store/comprobacion.h"
#include "store/errordatos.h"

#include <QDir>
#include <QFileInfo>

#include <cstring>
#include <vector>

namespace tarvo {

namespace {

constexpr qint64 kBloque = qint64{1} << 20;

class Copia {
  public:
    Copia(Archivo &origen, const QString &destino, Avance &avance)
        : nombre_(QFileInfo(destino).fileName()),
          origen_(origen),
          total_(origen.Tamano()),
          destino_(destino),
          avance_(avance),
          bloque_(kBloque) {}

    // The engine reads the new file while the disk still writes it; what it then is on the disk is compared.
    void Hacer() {
        Archivo copia(destino_, Archivo::Modo::Crear);
        Escribir(copia);
        ComprobarBase(destino_, [this] { avance_.Hecho(total_ / 3); });
        ComprobarTablas(destino_, nombre_);
        Sincronizar(copia);
        Comparar();
    }

  private:
    void Escribir(Archivo &copia) {
        avance_.Empieza(nombre_, total_);
        copia.Reservar(total_);
        qint64 hechos = 0;
        while (const qint64 bytes = origen_.Leer(bloque_.data(), kBloque)) {
            copia.Escribir(bloque_.data(), bytes);
            copia.AnunciarEscritura();
            hechos += bytes;
            avance_.Hecho(hechos / 3);
        }
    }
    // Bit by bit, since a slow disk can take long.
    void Sincronizar(const Archivo &copia) {
        for (qint64 hechos = 0; hechos < total_; hechos += kBloque) {
            copia.EsperarEscritura(hechos, kBloque);
            avance_.Hecho(total_ / 3 + hechos / 3);
        }
        copia.Sincronizar();
    }
    void Comparar() {
        origen_.Rebobinar();
        Archivo otra(destino_, Archivo::Modo::Leer);
        std::vector<char> leido(kBloque);
        qint64 hechos = 0;
        for (qint64 bytes = 1; bytes > 0; hechos += bytes) {
            bytes = origen_.Leer(bloque_.data(), kBloque);
            if (otra.Leer(leido.data(), kBloque) != bytes ||
                std::memcmp(bloque_.data(), leido.data(), static_cast<std::size_t>(bytes)) != 0)
                throw ErrorDatos(errores::kEscritura,
                                 QStringLiteral("La copia de \"%1\" no es igual al original.").arg(nombre_));
            avance_.Hecho(total_ * 2 / 3 + hechos / 3);
        }
    }

    QString nombre_;
    Archivo &origen_;
    qint64 total_;
    QString destino_;
    Avance &avance_;
    std::vector<char> bloque_;
};

} // namespace

// A file that was there a moment ago is gone with its folder or its disk.
void CopiarSeguro(Archivo &origen, const QString &destino, Avance &avance) {
    try {
        Copia(origen, destino, avance).Hacer();
    } catch (const ErrorDatos &) {
        if (QFileInfo(destino).absoluteDir().exists())
            throw;
        throw ErrorDatos(errores::kRutaNoEncontrada,
                         QStringLiteral("La carpeta \"%1\" ya no está: la copia de \"%2\" no se pudo hacer.")
                             .arg(QFileInfo(destino).absoluteDir().dirName(), QFileInfo(destino).fileName()));
    }
}

} // namespace tarvo
