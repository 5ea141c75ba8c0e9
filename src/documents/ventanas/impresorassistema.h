// The printers of the machine: the installed ones, and the built-in "PDF" behind them.
//
// An installed printer that is itself called "PDF" goes by the name "PDF (sistema)".
#pragma once

#include "documents/impresoras.h"

namespace tarvo {

class Reloj;

class ImpresorasSistema final : public Impresoras {
  public:
    // `carpetaImpresos` is where the built-in printer writes; it is made when first needed. The system's
    // default printer is the current one, the built-in one where the system has none.
    ImpresorasSistema(const Reloj &reloj, QString carpetaImpresos);

    QStringList Nombres() const override;
    QString Actual() const override { return actual_; }
    void HacerActual(const QString &nombre) override;
    std::unique_ptr<Superficie> NuevoDocumento(ClasePapel clase, const QString &titulo) override;

  private:
    const Reloj &reloj_;
    QString carpetaImpresos_;
    QString actual_;
};

} // namespace tarvo
