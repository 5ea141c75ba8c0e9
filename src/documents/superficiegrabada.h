// A printing surface that records: the text of each page as it would lie on the paper, for tests and for
// printers that must know the length of a slip before they cut the paper.
#pragma once

#include "documents/superficie.h"

#include <QStringList>

#include <functional>
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
    // Line and column are then the ones of a page of 12 point lines that lie nearest below the point.
    void Posicion(int xTwips, int yTwips) override;
    // A picture is recorded as the text "[imagen WxH]" at its point; the head stays.
    void Imagen(const QImage &imagen, int xTwips, int yTwips, int anchoTwips, int altoTwips) override;
    void NuevaPagina() override;
    void Terminar() override { terminado_ = true; }

    // Does on `otra` all that was done on this surface, without the end.
    void Repetir(Superficie &otra) const;

    const std::vector<Trozo> &Trozos() const { return trozos_; }
    int Paginas() const { return pagina_ + 1; }
    bool Terminado() const { return terminado_; }
    // The lines of each page with blanks between the pieces; "\f" stands between pages.
    QStringList Lineas() const;
    // The same with size and bold told where they change: "[11][n]Tarvo[/n]". Lines end with "\n".
    QString Volcado() const;

  private:
    struct Lugar {
        int linea = 0;
        int columna = 0;
    };
    using Paso = std::function<void(Superficie &)>;
    using Escribir = std::function<QString(const Trozo &)>;

    Lugar LugarDe(int xTwips, int yTwips) const;
    void Anotar(Paso paso);
    QStringList Componer(const Escribir &escribir) const;

    std::vector<Paso> pasos_;
    std::vector<Trozo> trozos_;
    std::vector<int> lineasDePagina_{0};
    int pagina_ = 0;
    Lugar cabezal_;
    bool terminado_ = false;
};

} // namespace tarvo
