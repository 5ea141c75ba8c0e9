#include "desktop/ventanas/pintorboton.h"

#include <QPainter>
#include <QStyle>
#include <QStyleOptionFocusRect>

#include <algorithm>

namespace tarvo {

namespace {

constexpr int kMargen = 4;
constexpr int kLuzBisel = 48;

// A row or column of the frame, counted from its edge, and how far its colour is shifted.
struct Linea {
    Qt::Edge borde;
    int lugar;
    int cambio;
};
constexpr Linea kEnfocado[] = {{Qt::TopEdge, 1, 65},
                               {Qt::TopEdge, 2, 50},
                               {Qt::BottomEdge, 1, -33},
                               {Qt::LeftEdge, 2, 31},
                               {Qt::RightEdge, 2, 31}};
constexpr Linea kBajoRaton[] = {{Qt::TopEdge, 1, -40},
                                {Qt::TopEdge, 2, 200},
                                {Qt::BottomEdge, 1, 35},
                                {Qt::LeftEdge, 2, 20},
                                {Qt::RightEdge, 2, 20}};
// Inside the rectangle of the pressed frame.
constexpr Linea kPresionado[] = {{Qt::BottomEdge, 2, -48}, {Qt::BottomEdge, 3, -32}, {Qt::RightEdge, 2, -36},
                                 {Qt::RightEdge, 3, -24},  {Qt::TopEdge, 2, 16},     {Qt::TopEdge, 3, 10},
                                 {Qt::LeftEdge, 2, -5},    {Qt::LeftEdge, 3, -10}};

class Pintor {
  public:
    Pintor(QPainter &pintor, const AspectoBoton &boton) : p_(pintor), b_(boton) {}

    void Pintar() {
        Fondo();
        if (!b_.sinBorde)
            Marco();
        const QRect interior = b_.zona.adjusted(kMargen, kMargen, -kMargen, -kMargen);
        const QRect deImagen = LugarImagen(interior);
        b_.imagen.paint(&p_, deImagen, Qt::AlignCenter, b_.habilitado ? QIcon::Normal : QIcon::Disabled);
        if (b_.rectanguloFoco)
            RectanguloFoco(interior);
        if (!b_.texto.isEmpty())
            Texto(LugarTexto(interior, deImagen));
    }

  private:
    void Fondo() {
        if (!b_.transparente)
            p_.fillRect(b_.zona, b_.fondo);
        if (b_.sinBorde || (b_.bisel != 1 && b_.bisel != 2))
            return;
        const int filas = std::min(b_.hondura, b_.zona.height());
        for (int i = 0; i < filas; ++i) {
            const int y = b_.bisel == 1 ? b_.zona.top() + i : b_.zona.bottom() - i;
            p_.fillRect(QRect(b_.zona.left(), y, b_.zona.width(), 1),
                        Desplazado(b_.fondo, kLuzBisel - kLuzBisel * i / b_.hondura));
        }
    }
    void Marco() {
        if (!b_.presionado && !b_.conFoco && !b_.conRaton && !b_.bordeSiempre)
            return;
        p_.setPen(b_.borde);
        p_.drawRect(b_.zona.adjusted(0, 0, -1, -1));
        const QRect esquinas = b_.zona.adjusted(1, 1, -1, -1);
        for (const QPoint esquina :
             {esquinas.topLeft(), esquinas.topRight(), esquinas.bottomLeft(), esquinas.bottomRight()})
            p_.drawPoint(esquina);
        if (b_.presionado) {
            Trazar(kPresionado, b_.fondo);
            MarcoInterior(b_.enfocado);
        } else if (b_.conRaton) {
            Luces(kBajoRaton, b_.bajoRaton);
        } else if (b_.conFoco) {
            Luces(kEnfocado, b_.enfocado);
        }
    }
    template <std::size_t N> void Luces(const Linea (&lineas)[N], const QColor &color) {
        MarcoInterior(color);
        Trazar(lineas, color);
    }
    void MarcoInterior(const QColor &color) {
        p_.setPen(color);
        p_.drawRect(b_.zona.adjusted(1, 1, -2, -2));
    }
    template <std::size_t N> void Trazar(const Linea (&lineas)[N], const QColor &color) {
        for (const Linea &linea : lineas)
            Trazar(linea, Desplazado(color, linea.cambio));
    }
    void Trazar(const Linea &linea, const QColor &color) {
        const QRect z = b_.zona;
        p_.setPen(color);
        switch (linea.borde) {
        case Qt::TopEdge:
            p_.drawLine(z.left() + 1, z.top() + linea.lugar, z.right() - 1, z.top() + linea.lugar);
            break;
        case Qt::BottomEdge:
            p_.drawLine(z.left() + 1, z.bottom() - linea.lugar, z.right() - 1, z.bottom() - linea.lugar);
            break;
        case Qt::LeftEdge:
            p_.drawLine(z.left() + linea.lugar, z.top() + 1, z.left() + linea.lugar, z.bottom() - 1);
            break;
        case Qt::RightEdge:
            p_.drawLine(z.right() - linea.lugar, z.top() + 1, z.right() - linea.lugar, z.bottom() - 1);
            break;
        }
    }

    QRect LugarImagen(const QRect &interior) const {
        if (b_.imagen.isNull())
            return {};
        QRect lugar({0, 0}, b_.tamanoImagen.boundedTo(interior.size()));
        lugar.moveCenter(interior.center());
        if (b_.texto.isEmpty())
            return lugar;
        if (b_.posicionImagen == 1)
            lugar.moveLeft(interior.left());
        else if (b_.posicionImagen == 2)
            lugar.moveRight(interior.right());
        else if (b_.posicionImagen == 3)
            lugar.moveTop(interior.top());
        else if (b_.posicionImagen == 4)
            lugar.moveBottom(interior.bottom());
        return lugar;
    }
    QRect LugarTexto(QRect interior, const QRect &deImagen) const {
        if (deImagen.isNull())
            return interior;
        if (b_.posicionImagen == 1)
            interior.setLeft(deImagen.right() + kMargen);
        else if (b_.posicionImagen == 2)
            interior.setRight(deImagen.left() - kMargen);
        else if (b_.posicionImagen == 3)
            interior.setTop(deImagen.bottom());
        else if (b_.posicionImagen == 4)
            interior.setBottom(deImagen.top());
        return interior;
    }
    void Texto(QRect lugar) {
        constexpr int forma = Qt::AlignCenter | Qt::TextShowMnemonic;
        p_.setFont(b_.letra);
        if (b_.presionado)
            lugar.translate(1, 1);
        if (!b_.habilitado) {
            p_.setPen(b_.resalte);
            p_.drawText(lugar.translated(1, 1), forma, b_.texto);
        }
        p_.setPen(b_.habilitado ? b_.colorTexto : b_.sombra);
        p_.drawText(lugar, forma, b_.texto);
    }
    void RectanguloFoco(const QRect &interior) {
        p_.setPen(QPen(b_.colorTexto, 1, Qt::DotLine));
        p_.drawRect(interior.adjusted(0, 0, -1, -1));
    }

    QPainter &p_;
    const AspectoBoton &b_;
};

} // namespace

QColor Desplazado(const QColor &color, int cambio) {
    const auto canal = [cambio](int valor) { return std::clamp(valor + cambio, 0, 255); };
    return {canal(color.red()), canal(color.green()), canal(color.blue())};
}

void PintarBoton(QPainter &pintor, const AspectoBoton &boton) {
    Pintor(pintor, boton).Pintar();
}

} // namespace tarvo
