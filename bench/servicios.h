// What a window needs beside its data, reduced to what a measure can bear: questions are answered with yes,
// a message ends the bench, there are no printers, no desktop and no main window.
#pragma once

#include "muestra.h"

#include "desktop/anfitrion.h"
#include "desktop/escritorio.h"
#include "desktop/preguntas.h"
#include "desktop/reloj.h"
#include "desktop/servicios.h"
#include "documents/impresoras.h"
#include "store/errordatos.h"

#include <QSettings>

namespace comparacion {

class PreguntasSi : public tarvo::Preguntas {
  public:
    tarvo::Respuesta Preguntar(const QString &, tarvo::Respuesta) override { return tarvo::Respuesta::Si; }
    void Mostrar(const QString &texto, tarvo::Icono) override {
        std::fprintf(stderr, "%s\n", qPrintable(texto));
        std::exit(2);
    }
    QString ElegirRuta(const tarvo::PedidoRuta &) override { return {}; }
};

class SinImpresoras final : public tarvo::Impresoras {
  public:
    QStringList Nombres() const override { return {}; }
    QString Actual() const override { return {}; }
    void HacerActual(const QString &) override {}
    std::unique_ptr<tarvo::Superficie> NuevoDocumento(tarvo::ClasePapel, const QString &) override {
        throw tarvo::ErrorDatos(tarvo::errores::kImpresora, {});
    }
};

class SinEscritorio final : public tarvo::Escritorio {
  public:
    bool AbrirArchivo(const QString &) override { return false; }
    bool AbrirDireccion(const QUrl &) override { return false; }
    bool AbrirAjustesImpresoras() override { return false; }
};

class SinAnfitrion final : public tarvo::Anfitrion {
  public:
    void PonerExportable(bool) override {}
    void Sugerencia(const QString &) override {}
};

// The data of one shop, opened, and all that a window on them is given.
struct Puesto {
    explicit Puesto(const QString &carpeta) : bases(carpeta) {}
    tarvo::Servicios servicios() { return {bases, preguntas, reloj, impresoras, ajustes, escritorio}; }

    BasesAbiertas bases;
    PreguntasSi preguntas;
    tarvo::RelojSistema reloj;
    SinImpresoras impresoras;
    QTemporaryDir carpetaAjustes;
    QSettings ajustes{carpetaAjustes.filePath(QStringLiteral("ajustes.ini")), QSettings::IniFormat};
    SinEscritorio escritorio;
    SinAnfitrion anfitrion;
};

} // namespace comparacion
