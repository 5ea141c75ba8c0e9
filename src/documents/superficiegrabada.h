// A printing surface that records: the text of each page as it would lie on the paper, for tests and for printers
// that must know the length of a slip before they cut the paper.
#pragma once

#include "documents/superficie.h"

#include <QStringList>

#include <vector>

namespace tarvo {

class SuperficieGrabada : public Superficie {
  public:
    // A piece of text as it was written: page from 0, line of its page from 0, column in characters from 0.
    struct Trozo {
        int pagina = 0;
        int linea = 0;
        int columna = 0;
        QString texto;
        Letra letra;
    };

    void Texto(const QString &texto) override;
    void Columna(int caracteres) override;
    void FinLinea() override;
    void Posicion(int xTwips, int yTwips) override;
    void Imagen(const QImage &imagen, int xTwips, int yTwips, int anchoTwips, int altoTwips) override;
    void NuevaPagina() override;
    void Terminar() override { terminado_ = true; }

    const std::vector<Trozo> &Trozos() const { return trozos_; }
    int Paginas() const { return pagina_ + 1; }
    bool Terminado() const { return terminado_; }
    // The lines of each page with blanks between the pieces; "\f" stands between pages.
    QStringList Lineas() const;
    // The same with size and bold told where they change: "[11][n]Tarvo[/n]".
    QString Volcado() const;

  private:
    std::vector<Trozo> trozos_;
    int pagina_ = 0;
    int linea_ = 0;
    int columna_ = 0;
    bool terminado_ = false;
};

} // namespace tarvo
