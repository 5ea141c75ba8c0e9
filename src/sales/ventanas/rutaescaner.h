// The road of the barcode scanner through the sale window: whatever has the focus, a code that is scanned is
// searched, and never becomes a quantity, a discount, a document number or the choice of a seller.
//
// A scanner is a keyboard that ends with Enter. A character typed where no text goes (a list, a button, a
// menu of which it is no letter) starts a new text in the search field, that of the customer panel while it
// is open. In a field of the sale it is typed as any other; the Enter behind it hands what can't be meant for
// the field to the search, and the field gets back what it held. A box opens when the keyboard has been quiet
// for a moment, so that no scan is cut by it; it stays until a key of the operator: what is scanned meanwhile
// waits in a queue, which the sale works off as soon as it is free. So it does behind a box of the main
// window over the sale. A second Enter adds what was found.
#pragma once

#include "desktop/preguntas.h"
#include "sales/rachateclas.h"

#include <QElapsedTimer>
#include <QList>
#include <QObject>
#include <QTimer>

#include <functional>
#include <vector>

class QKeyEvent;
class QWidget;

namespace tarvo {

// The questions of the sale are asked through it, so that it hears what is typed meanwhile.
class RutaEscaner : public QObject, public Preguntas {
    Q_OBJECT
  public:
    // A field that keys are meant for, and how a scan in it is told from them.
    struct CampoVenta {
        QWidget *control;
        std::function<QString()> leer;
        std::function<void(const QString &)> poner; // back to what it held
        // What was typed in one run, and what is now in the field: the code that it is, else empty.
        std::function<QString(const QString &racha, const QString &texto)> codigo;
    };

    // Searches a code; with `agregar` adds the article that it finds.
    using Buscar = std::function<void(const QString &codigo, bool agregar)>;
    // Puts a first character into a search field, which gets the focus.
    using Empezar = std::function<void(const QString &texto)>;

    explicit RutaEscaner(Preguntas &preguntas);
    // `venta` is enabled while the sale takes scans. Nothing is heard before.
    void Montar(QWidget *venta, Buscar buscar);
    // What is typed on the controls without text in `marco` begins a search; the first is that of the sale.
    void Desviar(QWidget *marco, Empezar empezar) { desvios_.push_back({marco, std::move(empezar)}); }
    void Vigilar(CampoVenta campo) { campos_.push_back(std::move(campo)); }

    Respuesta Preguntar(const QString &texto, Respuesta preseleccionada) override;
    void Mostrar(const QString &texto, Icono icono) override;
    QString ElegirRuta(const PedidoRuta &pedido) override { return preguntas_.ElegirRuta(pedido); }

  protected:
    bool eventFilter(QObject *objeto, QEvent *evento) override;

  private:
    struct Desvio {
        QWidget *marco;
        Empezar empezar;
    };
    struct Lectura {
        QString codigo;
        bool agregar; // a second Enter came with it
    };

    void ConCuadro(const std::function<void()> &cuadro);
    void EsperarCalma();
    int CalmaEn() const; // ms until the keyboard has been quiet long enough
    void RetenerTeclado();
    void Reanudar();
    void BuscarPendiente();
    bool ConCuadroAbierto() const;
    bool Libre() const;
    bool DetrasDelCuadro(QEvent &evento);
    bool Recoger(const QKeyEvent &evento);
    bool Tecla(QWidget *recibe, const QKeyEvent &evento);
    bool Entrar(CampoVenta &campo);
    CampoVenta *CampoDe(const QWidget *recibe);
    Empezar DesvioDe(const QWidget *recibe) const;

    Preguntas &preguntas_;
    QWidget *venta_ = nullptr;
    Buscar buscar_;
    std::vector<Desvio> desvios_;
    std::vector<CampoVenta> campos_;
    RachaTeclas racha_;
    QString antes_;       // what the field held when the run began
    QList<Lectura> cola_; // scanned while the sale was not free
    quint64 ultima_ = 0;  // time stamp of the last key that was collected
    bool leida_ = false;  // it was the Enter of a scan
    QElapsedTimer desdeTecla_;
    QTimer calma_;
    bool preguntando_ = false;
    bool esperando_ = false; // for the calm before the box
};

} // namespace tarvo
