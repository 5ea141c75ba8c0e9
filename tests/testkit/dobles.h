// What stands for the world around a window: its main window, the desktop and the clock.
#pragma once

#include "desktop/anfitrion.h"
#include "desktop/escritorio.h"
#include "desktop/reloj.h"

#include <QList>
#include <QStringList>

namespace tarvo {

// A main window that remembers what a module has told it.
class AnfitrionPrueba final : public Anfitrion {
  public:
    QList<bool> dicho; // whether a list can be exported, each time it was said
    QString sugerencia;

    bool Exportable() const { return !dicho.isEmpty() && dicho.last(); }
    void PonerExportable(bool posible) override { dicho << posible; }
    void Sugerencia(const QString &texto) override { sugerencia = texto; }
};

// A desktop that opens nothing and remembers what it was asked for.
class EscritorioPrueba final : public Escritorio {
  public:
    QStringList archivos;
    QList<QUrl> direcciones;
    int ajustesImpresoras = 0;
    bool responde = true; // false: the desktop knows no program

    bool AbrirArchivo(const QString &ruta) override {
        archivos.append(ruta);
        return responde;
    }
    bool AbrirDireccion(const QUrl &direccion) override {
        direcciones.append(direccion);
        return responde;
    }
    bool AbrirAjustesImpresoras() override {
        ++ajustesImpresoras;
        return responde;
    }
};

// A clock that tests set.
class RelojFijo final : public Reloj {
  public:
    explicit RelojFijo(QDateTime momento = QDateTime({2026, 11, 22}, {10, 42}))
        : momento_(std::move(momento)) {}
    void Poner(const QDateTime &momento) { momento_ = momento; }
    QDateTime Ahora() const override { return momento_; }

  private:
    QDateTime momento_;
};

} // namespace tarvo
