#include "interchange/copiasegura.h"

#include "interchange/archivos.h"
#include "interchange/avance.h"
#include "store/comprobacion.h"
#include "store/errordatos.h"

#include <QDir>
#include <QFileInfo>

#include <array>
#include <chrono>
#include <cstring>

namespace tarvo {

namespace {

constexpr qint64 kTrozo = qint64{1} << 20;
constexpr std::chrono::milliseconds kPausa{10}; // between two signs of life while the engine still reads

struct alignas(Archivo::kAlineacion) Trozo : std::array<char, kTrozo> {};

class Copia {
  public:
    Copia(Archivo &origen, const QString &destino, Avance &avance)
        : nombre_(QFileInfo(destino).fileName()),
          origen_(origen),
          total_(origen.Tamano()),
          destino_(destino),
          avance_(avance),
          trozo_(std::make_unique_for_overwrite<Trozo>()) {}

    // The engine reads the new file while this brings it to the disk and compares what it is there.
    Examen Hacer() {
        Archivo copia(destino_, Archivo::Modo::Crear);
        Escribir(copia);
        Examen examen(destino_);
        Sincronizar(copia);
        Comparar();
        return examen;
    }

  private:
    void Escribir(Archivo &copia) {
        avance_.Empieza(nombre_, total_);
        copia.Reservar(total_);
        qint64 hechos = 0;
        while (const qint64 bytes = origen_.Leer(trozo_->data(), kTrozo)) {
            copia.Escribir(trozo_->data(), bytes);
            copia.AnunciarEscritura();
            hechos += bytes;
            avance_.Hecho(hechos / 3);
        }
    }
    // Bit by bit, since a slow disk can take long.
    void Sincronizar(const Archivo &copia) {
        for (qint64 hechos = 0; hechos < total_; hechos += kTrozo) {
            copia.EsperarEscritura(hechos, kTrozo);
            avance_.Hecho(total_ / 3 + hechos / 3);
        }
        copia.Sincronizar();
    }
    void Comparar() {
        origen_.Rebobinar();
        Archivo otra(destino_, Archivo::Modo::LeerDisco);
        const auto leido = std::make_unique_for_overwrite<Trozo>();
        qint64 hechos = 0;
        for (qint64 bytes = 1; bytes > 0; hechos += bytes) {
            bytes = origen_.Leer(trozo_->data(), kTrozo);
            if (otra.Leer(leido->data(), kTrozo) != bytes ||
                std::memcmp(trozo_->data(), leido->data(), static_cast<std::size_t>(bytes)) != 0)
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
    std::unique_ptr<Trozo> trozo_;
};

// A file that was there a moment ago is gone with its folder or its disk.
template <typename Paso> auto EnCarpeta(const QString &destino, Paso paso) {
    try {
        return paso();
    } catch (const ErrorDatos &) {
        if (QFileInfo(destino).absoluteDir().exists())
            throw;
        throw ErrorDatos(errores::kRutaNoEncontrada,
                         QStringLiteral("La carpeta \"%1\" ya no está: la copia de \"%2\" no se pudo hacer.")
                             .arg(QFileInfo(destino).absoluteDir().dirName(), QFileInfo(destino).fileName()));
    }
}

} // namespace

Examen::Examen(const QString &ruta) : ruta_(ruta) {
    std::packaged_task<void(std::stop_token)> tarea([ruta](const std::stop_token &parar) {
        ComprobarBase(ruta, parar);
        ComprobarTablas(ruta, QFileInfo(ruta).fileName());
    });
    resultado_ = tarea.get_future();
    hilo_ = std::jthread(std::move(tarea));
}

void Examen::Exigir(Avance &avance) {
    EnCarpeta(ruta_, [&] {
        while (resultado_.wait_for(kPausa) == std::future_status::timeout)
            avance.Espera();
        resultado_.get();
    });
}

Examen CopiarSeguro(Archivo &origen, const QString &destino, Avance &avance) {
    return EnCarpeta(destino, [&] { return Copia(origen, destino, avance).Hacer(); });
}

void Exigir(std::vector<Examen> &examenes, Avance &avance) {
    for (Examen &examen : examenes)
        examen.Exigir(avance);
    examenes.clear();
}

} // namespace tarvo
