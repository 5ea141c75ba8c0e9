// A printing surface that shows the text of each page as it would lie on the paper.
#pragma once

#include "documents/superficie.h"

#include <QPoint>
#include <QStringList>

#include <functional>
#include <vector>

namespace tarvo {

class PapelPrueba : public Superficie {
  public:
    // A piece of text as it was written: page from 0, line of its page from 0, column in characters from 0.
    struct Trozo {
        int pagina = 0;
        int linea = 0;
        int columna = 0;
        QString texto;
        Letra letra;
        QPoint punto; // in twips, where the head was last put by Posicion
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
    using Escribir = std::function<QString(const Trozo &)>;

    Lugar LugarDe(int xTwips, int yTwips) const;
    QStringList Componer(const Escribir &escribir) const;

    std::vector<Trozo> trozos_;
    std::vector<int> lineasDePagina_{0};
    int pagina_ = 0;
    Lugar cabezal_;
    QPoint punto_;
    bool terminado_ = false;
};

} // namespace tarvo
