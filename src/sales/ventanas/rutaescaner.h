// The road of the barcode scanner through the sale window: whatever has the focus, a code that is scanned is
// searched, and never becomes a quantity, a discount, a document number or the choice of a seller.
//
// A scanner is a keyboard that ends with Enter. A character typed where no text goes (a list, a button)
// starts a new text in the search field. In a field of the sale it is typed as any other; the Enter behind it
// hands what can't be meant for the field to the search, and the field gets back what it held. While a
// question is up its default button is safe from the Enter of a scan, which is searched when the question is
// answered; an information takes the Enter as well.
#pragma once

#include "desktop/preguntas.h"
#include "sales/rachateclas.h"

#include <QObject>

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

    explicit RutaEscaner(Preguntas &preguntas);
    // `marcos` hold the controls of the sale. `buscar` searches a code; `empezar` puts a first character into
    // the search field, which gets the focus. Nothing is heard before.
    void Montar(std::vector<QWidget *> marcos, std::function<void(const QString &)> buscar,
                std::function<void(const QString &)> empezar);
    void Vigilar(CampoVenta campo) { campos_.push_back(std::move(campo)); }

    Respuesta Preguntar(const QString &texto, Respuesta preseleccionada) override;
    void Mostrar(const QString &texto, Icono icono) override;
    QString ElegirRuta(const PedidoRuta &pedido) override { return preguntas_.ElegirRuta(pedido); }

  protected:
    bool eventFilter(QObject *objeto, QEvent *evento) override;

  private:
    bool Tecla(QWidget *recibe, const QKeyEvent &evento);
    bool EnCuadro(QWidget *cuadro, const QKeyEvent &evento);
    bool Entrar(CampoVenta &campo);
    CampoVenta *CampoDe(const QWidget *recibe);
    bool EsSinTexto(const QWidget *recibe) const;
    void BuscarPendiente();

    Preguntas &preguntas_;
    std::vector<QWidget *> marcos_;
    std::function<void(const QString &)> buscar_;
    std::function<void(const QString &)> empezar_;
    std::vector<CampoVenta> campos_;
    RachaTeclas racha_;
    QString antes_;     // what the field held when the run began
    QString pendiente_; // scanned while a question was up
    bool preguntando_ = false;
    bool informando_ = false;
};

} // namespace tarvo
