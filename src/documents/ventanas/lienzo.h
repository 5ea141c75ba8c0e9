// The canvas of the designer, `picFactura`: the sheet with a widget for each piece of the layout, each under
// its own name, the background for trying, and what is only drawn: the frame of the piece under work and the
// guides.
#pragma once

#include <QWidget>

#include <vector>

namespace tarvo {

class Disenador;
class PiezaLienzo;

class Lienzo : public QWidget {
    Q_OBJECT
  public:
    explicit Lienzo(QWidget *padre = nullptr);
    ~Lienzo() override;
    // Shows the layout of `disenador` from now on; once.
    void Mostrar(Disenador &disenador);
    // The piece under work, -1 when there is none or it is hidden.
    int EnTrabajo() const;
    // The canvas has moved below the cursor: the piece that is dragged goes with the cursor.
    void Seguir();

  signals:
    // Another piece is under work, or it was moved.
    void TrabajoCambiado();
    // A piece follows the cursor, which is at this place of the canvas.
    void CursorMovido(const QPoint &lugar);
    void PiezaSoltada();

  protected:
    void paintEvent(QPaintEvent *evento) override;

  private:
    class Trazos;

    void CrearPieza(int numero);
    void ConectarPieza(PiezaLienzo &pieza);
    void Actualizar();
    void Vestir(PiezaLienzo &pieza);
    void Arrastrar(int numero, const QPointF &cursor);
    void Trazar();

    Disenador *disenador_ = nullptr;
    std::vector<PiezaLienzo *> piezas_;
    Trazos *trazos_;
    int enTrabajo_ = -1;
    qint64 logo_ = 0; // the picture that is shown
    int arrastrada_ = -1;
    QPointF cursor_; // on the screen, while a piece is dragged
};

} // namespace tarvo
