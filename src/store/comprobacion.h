// Data files outside the data layer: whether one is sound and whether it is one of ours, without writing
// anything; and one that is held so that nobody else writes it.
#pragma once

#include <QString>

#include <functional>
#include <memory>

namespace SQLite {
class Database;
}

namespace tarvo {

// Reads the file from end to end as the engine does. Throws ErrorDatos(kBaseIlegible) with the name of the
// file and what is wrong with it. `pausa` is called now and then.
void ComprobarBase(const QString &ruta, const std::function<void()> &pausa = {});

// The file can be opened beside the others and has all tables and columns of the data file `archivo`
// ("ventas.mdb"). Throws as ComprobarBase.
void ComprobarTablas(const QString &ruta, const QString &archivo);

// While it lives no other process writes the file. What a power cut left half written is first taken back.
class BaseRetenida {
  public:
    // Throws ErrorDatos: kArchivoNoEncontrado, kBaseBloqueada, kBaseIlegible, with the name of the file.
    explicit BaseRetenida(const QString &ruta);
    ~BaseRetenida();
    BaseRetenida(const BaseRetenida &) = delete;
    BaseRetenida &operator=(const BaseRetenida &) = delete;

  private:
    std::unique_ptr<SQLite::Database> base_;
};

} // namespace tarvo
