// The invoice layout under work: what the designer's window shows and does, without the window.
//
// The layout is tied to no file: nothing marks it as changed, and what isn't saved when the window closes is
// lost. Every step can be undone. The path of the layout that was opened or saved last is stored in the data;
// that, and the ticket printer as the current one, is all that is left behind for the rest of the program.
#pragma once

#include "desktop/servicios.h"
#include "documents/factura.h"

#include <QObject>
#include <QRect>
#include <QUndoStack>

#include <functional>
#include <optional>

namespace tarvo {

// A piece of the canvas by its number: the twenty fields in the order of the file, the logo, the labels.
namespace pieza {
inline constexpr int kLogo = static_cast<int>(kCamposFactura);
inline constexpr int kEtiquetas = kLogo + 1;
inline constexpr int kTodas = kEtiquetas + static_cast<int>(kEtiquetasFactura);
} // namespace pieza

// What the operator asks for in the label dialog, as it stands in the fields.
struct EtiquetaPedida {
    QString texto;
    QString pixeles;
    int alineacion = 0;
    bool negrita = false;
    bool cursiva = false;
    bool tachada = false;
    bool subrayada = false;
};

class Disenador : public QObject {
    Q_OBJECT
  public:
    // Chooses the ticket printer. `carpetaFacturas` is where the file dialogs start; it is made when needed.
    Disenador(const Servicios &servicios, QString carpetaFacturas, QObject *padre = nullptr);

    // Reads the stored layout, if there is one. A path that leads nowhere any more, or to a damaged file, is
    // told in one box, and the default layout stays.
    void CargarInicial();

    // --- what the canvas shows
    const DisenoFactura &Diseno() const { return estado_.formulario.diseno; }
    const QImage &Logo() const { return estado_.formulario.logo; }
    const QImage &Fondo() const { return fondo_; }
    const Pieza &De(int numero) const;
    // Size in twips.
    QSizeF Tamano(int numero) const;
    // Where the piece is shown, in pixels: as it stands; but one that reaches into the canvas by less than
    // the mouse can take, and is not being dragged, is at its border, though the layout keeps its value.
    QRect EnLienzo(int numero) const;
    // "Nombre Cliente", "Logotipo", or the text of a label.
    QString Rotulo(int numero) const;
    // "lblCliNombre", "imgLogo", "lblPers(0)".
    static QString Nombre(int numero);

    // --- the mouse and the keys; while the mouse drags a piece the keys do nothing
    // The corner of the piece goes to this place, in twips; it may leave the canvas until it is let go.
    void Arrastrar(int numero, const QPointF &lugar);
    void Soltar(int numero);
    bool Arrastrando() const { return antesDeArrastrar_.has_value(); }
    // Moves by pixels, within the canvas.
    void Mover(int numero, const QPoint &pixeles);
    // Asks, then hides.
    void Ocultar(int numero);
    void Deshacer();
    void Rehacer();

    // --- the commands
    void Abrir();
    void Guardar();
    void ElegirLogo();
    void ElegirFondo();
    void Imprimir();

    // --- the dialogs
    enum class Pedido { FaltaTexto, MalTamano, SinLugar, Agregada };
    // Puts the label into the first free slot; what doesn't suit is told.
    Pedido AgregarEtiqueta(const EtiquetaPedida &pedida);
    void PonerVisible(int numero, bool visible);
    // What `accion` does by PonerVisible is one step of the history.
    void Agrupar(const QString &nombre, const std::function<void()> &accion);

  signals:
    void Cambiado();
    void PiezaArrastrada(int numero);
    void EtiquetaAgregada(int numero);
    void FondoCambiado();
    // A save that came to nothing, which no box tells.
    void NoGuardado(const QString &motivo);

  private:
    struct Estado {
        FormularioFactura formulario;
        QString rutaLogo; // of the logo picked since the window opened; a layout that is read brings none
        bool operator==(const Estado &otro) const;
    };
    class Paso;

    Pieza &Editar(int numero);
    void Limitar(int numero);
    // Runs `cambio` on the layout as one step.
    void Hacer(const QString &nombre, const std::function<void()> &cambio);
    void Anotar(const QString &nombre, const Estado &antes);
    void Poner(const Estado &estado);
    QString CarpetaFacturas() const;
    bool AceptaReemplazo();
    void Escribir();
    void AvisarSinAcceso();
    void GuardarRuta(const QString &ruta);
    std::optional<QImage> PedirImagen(const QString &titulo, QString &ruta);

    Servicios servicios_;
    QString carpetaFacturas_;
    bool hayImpresoras_ = false; // as long as the built-in one is listed there is one
    Estado estado_;
    QImage fondo_;
    QUndoStack historia_;
    std::optional<Estado> antesDeArrastrar_;
    int arrastrada_ = -1;
    QString nombreDialogo_; // of the save dialog
};

} // namespace tarvo
