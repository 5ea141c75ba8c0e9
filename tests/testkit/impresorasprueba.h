// Printers for tests: every document that is printed stays in memory as a page dump.
#pragma once

#include "documents/impresoras.h"
#include "store/errordatos.h"
#include "testkit/papelprueba.h"

#include <gtest/gtest.h>

#include <memory>
#include <utility>
#include <vector>

namespace tarvo {

class ImpresorasPrueba final : public Impresoras {
  public:
    QStringList nombres{u"Tickets"_qs, u"Láser"_qs, QString::fromLatin1(kImpresoraPdf)};
    QString actual = u"Láser"_qs;
    std::vector<std::shared_ptr<PapelPrueba>> documentos;
    bool fallar = false; // the next documents fail as with a printer that is gone

    // The text of a document that came out whole; throws when there is none.
    QString Papel(std::size_t cual = 0) const {
        EXPECT_TRUE(documentos.at(cual)->Terminado());
        return documentos.at(cual)->Lineas().join(u'\n');
    }

    QStringList Nombres() const override { return nombres; }
    QString Actual() const override { return actual; }
    void HacerActual(const QString &nombre) override {
        if (nombres.contains(nombre))
            actual = nombre;
    }
    std::unique_ptr<Superficie> NuevoDocumento(ClasePapel, const QString &) override {
        if (fallar)
            throw ErrorDatos(errores::kImpresora, u"No hay impresora."_qs);
        documentos.push_back(std::make_shared<PapelPrueba>());
        return std::make_unique<Hoja>(documentos.back());
    }

  private:
    // What the program writes on and throws away; the recording outlives it.
    class Hoja final : public Superficie {
      public:
        explicit Hoja(std::shared_ptr<PapelPrueba> grabada) : grabada_(std::move(grabada)) {}
        void Texto(const QString &texto) override { ConLetra().Texto(texto); }
        void Columna(int caracteres) override { ConLetra().Columna(caracteres); }
        void FinLinea() override { ConLetra().FinLinea(); }
        void Posicion(int xTwips, int yTwips) override { ConLetra().Posicion(xTwips, yTwips); }
        void Imagen(const QImage &imagen, int xTwips, int yTwips, int anchoTwips, int altoTwips) override {
            ConLetra().Imagen(imagen, xTwips, yTwips, anchoTwips, altoTwips);
        }
        void NuevaPagina() override { grabada_->NuevaPagina(); }
        void Terminar() override { grabada_->Terminar(); }

      private:
        Superficie &ConLetra() {
            grabada_->PonerLetra(letra_);
            return *grabada_;
        }
        std::shared_ptr<PapelPrueba> grabada_;
    };
};

} // namespace tarvo
