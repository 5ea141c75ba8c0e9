// The rules of the backup window without the window: paths, what may be ticked, the list of backups, and the
// two operations with their messages.
//
// While an operation runs, and behind one that failed, the data are closed; Reabrir opens them again, and the
// end of the window calls it too.
#pragma once

#include "desktop/servicios.h"
#include "interchange/basesrespaldo.h"

#include <QStringList>

namespace tarvo {

class Avance;

enum class Fin { Completo, Interrumpido, Fallido };
struct Desenlace {
    Fin fin;
    QString texto; // for the operator
};

class RespaldoLogica {
  public:
    explicit RespaldoLogica(const Servicios &servicios) : servicios_(servicios) {}

    // The folder "Respaldo" beside the data, with "/" behind it; empty when there is none.
    QString RutaInicial() const;
    // A folder that the operator picks, with "/" behind it; empty when he cancels.
    QString ElegirCarpetaRespaldo();
    QString ElegirCarpetaRecuperacion();

    // The box that empties a database has been ticked. False: it can't be, which has been told.
    bool PuedeVaciar(std::size_t base);
    // False, and told: nothing is chosen, or there is no path.
    bool PuedeRespaldar(const QString &ruta, const Elegidas &respaldar);
    Desenlace Respaldar(const QString &ruta, const Elegidas &respaldar, const Elegidas &vaciar,
                        Avance &avance);

    // The folders in `ruta`, by name.
    QStringList Respaldos(const QString &ruta) const;
    // The files that the backup folder `carpeta` holds.
    Elegidas Recuperables(const QString &carpeta) const;
    // False: there is nothing to restore, which has been told, or the operator has refused.
    bool PuedeRecuperar(bool hayRespaldos, const Elegidas &recuperar);
    Desenlace Recuperar(const QString &carpeta, const Elegidas &recuperar, Avance &avance);

    // Opens the data when an operation has closed them; what can't be opened is told.
    void Reabrir();

  private:
    template <typename Operacion>
    Desenlace Ejecutar(Operacion operacion, const QString &completo, const QString &interrumpido);
    QString ElegirCarpeta(const QString &titulo);

    Servicios servicios_;
    bool cerradas_ = false;
};

} // namespace tarvo
