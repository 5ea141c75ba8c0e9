// The printing surface that paints: on a system printer, or into a PDF file.
//
// Column c lies c widths of the font's "0" from the left margin, whatever font the system puts in the place
// of Courier New. Paper too narrow for the columns that a document needs gets everything smaller in
// proportion. What doesn't fit on a page goes on at the top of the next one.
#pragma once

#include "documents/superficie.h"

#include <QFont>
#include <QPagedPaintDevice>
#include <QPainter>
#include <QPoint>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace tarvo {

// The columns that must fit across the paper, in characters of a size; none: nothing is scaled.
struct Rejilla {
    int columnas = 0;
    double puntos = 10;
};

// How a form is painted on: without a margin, whatever the device can't reach. A place closer to the left or
// upper edge of the sheet than these widths, in twips, is moved to where the device begins to print.
struct Formulario {
    int izquierda = 0;
    int arriba = 0;
};

class SuperficiePintada final : public Superficie {
  public:
    // `alTerminar` is called behind the last stroke; it hands the document on and may throw ErrorDatos.
    // Throws ErrorDatos(kImpresora) when the device can't be painted on.
    SuperficiePintada(std::unique_ptr<QPagedPaintDevice> dispositivo, const Rejilla &rejilla,
                      std::function<void()> alTerminar = {});
    // A form: the device's page has no margins. What doesn't fit on the sheet is lost.
    SuperficiePintada(std::unique_ptr<QPagedPaintDevice> dispositivo, const Formulario &formulario,
                      std::function<void()> alTerminar = {});

    void Texto(const QString &texto) override;
    void Columna(int caracteres) override;
    void FinLinea() override;
    void Posicion(int xTwips, int yTwips) override;
    void Imagen(const QImage &imagen, int xTwips, int yTwips, int anchoTwips, int altoTwips) override;
    void NuevaPagina() override;
    double AnchoCaracter() override;
    double AltoLinea() override;
    void Terminar() override;

    int Paginas() const { return paginas_; }
    // Height from the top of the page to below the head's line, in millimetres.
    double AltoUsado() const;

  private:
    // A font as the device knows it; lengths in the device's dots.
    struct Tipo {
        Letra letra;
        QFont fuente;
        bool fija = true;
        double avance = 0;
        double ascenso = 0;
        double alto = 0;
    };
    const Tipo &TipoActual();
    Tipo CrearTipo() const;
    void Pintar(const Tipo &tipo, const QString &texto);
    double PuntosDispositivo(int twips) const;
    double ATwips(double puntos) const;
    QPoint EnPapel(int xTwips, int yTwips) const;

    std::function<void()> alTerminar_; // may own what the device writes to: destroyed last
    std::unique_ptr<QPagedPaintDevice> dispositivo_;
    QPainter pintor_;
    std::vector<std::unique_ptr<Tipo>> tipos_;
    const Tipo *tipo_ = nullptr; // the one that the painter has
    double ajuste_ = 1;
    std::optional<Formulario> formulario_;
    double x_ = 0;
    double y_ = 0;
    double altoLinea_ = 0; // of the highest text on the line
    int paginas_ = 1;
};

} // namespace tarvo
